// Starting programs, this program's own file, the working directory, and the two ends of this process's life.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

constexpr Long ShowMinimisedInactive = 7;

class Processes {
public:
    virtual ~Processes() = default;

    // Starts a program from a command line whose first word may be quoted. No shell. `show` 7 is minimised, without
    // taking the focus. More than 31 means started; 2 means no such file.
    virtual Long WinExec(const std::string& commandLine, Long show) = 0;
    virtual std::string GetModuleFileNameA() = 0;  // full path of the running program
    // "" if the path, with its closing zero, does not fit into `size`.
    virtual std::string GetCurrentDirectoryA(Long size) = 0;
    // A directory that cannot be entered leaves the working directory as it is.
    virtual void SetCurrentDirectoryA(const std::string& path) = 0;
};

class Program {
public:
    virtual ~Program() = default;

    // True if another panel of this user already runs.
    virtual bool PrevInstance() = 0;
    // Ends the process at once, with no clean-up of the logic. Does not return.
    [[noreturn]] virtual void End() = 0;
};

}  // namespace orvelle
