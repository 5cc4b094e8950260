// The start of one program, apart from how its command line reads.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace orvelle {

struct LaunchResult {
    int Error;      // 0 if the program runs, else the system's error number
    pid_t Session;  // of the program and all that it starts
};

// `file` is the program's path, `arguments` what it is told behind its name. `startupId` names the start to the
// program's toolkit; "" for none.
LaunchResult Launch(const std::string& file, const std::vector<std::string>& arguments, const std::string& startupId);

}  // namespace orvelle
