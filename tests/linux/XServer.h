// A virtual X server of the test's own, on a display number that is free.
#pragma once

#include <string>
#include <vector>

#include "tests/linux/ChildProcess.h"

namespace orvelle::linux {

class XServer {
public:
    explicit XServer(const std::vector<std::string>& furtherArguments = {});

    const std::string& Display() const { return display; }
    pid_t Id() const { return process.Id(); }
    void End();
    // Sets the keyboard's layouts, as "us" or "us,ru".
    void SetLayout(const std::string& layouts);

private:
    ChildProcess process;
    std::string display;
};

}  // namespace orvelle::linux
