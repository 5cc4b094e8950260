// The one exception that crosses an interface: a run-time error with its number. Nothing but the three guarded
// routines catches it on its way up; it ends the program with one line on standard error.
#pragma once

#include <exception>

namespace orvelle {

class RuntimeError : public std::exception {
public:
    enum : int { Overflow = 6, SubscriptOutOfRange = 9, TypeMismatch = 13 };

    explicit RuntimeError(int errorNumber) : Number(errorNumber) {}
    const char* what() const noexcept override { return "run-time error"; }

    const int Number;
};

}  // namespace orvelle
