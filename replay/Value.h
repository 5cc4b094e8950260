// A value of a scenario or of a transcript: a text, a whole number, a Boolean, a real number, or a bare word that is
// printed as it stands, such as the name of a window. Reading it as another type throws LineError.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "platform/Types.h"
#include "replay/LineError.h"

namespace orvelle::replay {

class Value {
public:
    struct BareWord {
        std::string Letters;
    };

    Value(std::string text) : held(std::move(text)) {}
    Value(const char* text) : held(std::string(text)) {}
    Value(Long number) : held(number) {}
    Value(Integer number) : held(static_cast<Long>(number)) {}
    Value(bool flag) : held(flag) {}
    Value(double number) : held(number) {}
    // Printed with the digits that a single-precision number needs.
    Value(float number);

    static Value Word(std::string letters) { return Value(BareWord{std::move(letters)}); }
    // A root of the registry, printed as 0x80000002.
    static Value Root(Long root);

    template <typename T>
    bool Is() const {
        return std::holds_alternative<T>(held);
    }
    template <typename T>
    const T& As() const {
        if (const T* value = std::get_if<T>(&held)) return *value;
        throw LineError(Printed() + " is a value of another kind");
    }

    std::string Printed() const;

private:
    explicit Value(BareWord word) : held(std::move(word)) {}

    std::variant<std::string, Long, bool, double, BareWord> held;
};

using Values = std::vector<Value>;

// Printed one behind the other: "7, True, """.
std::string Printed(const Values& values);

}  // namespace orvelle::replay
