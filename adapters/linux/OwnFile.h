// Where this program's own file lies. Whatever belongs to the program is looked for beside it.
#pragma once

#include <string>

namespace orvelle::linux {

// Full path of the running program, "" if the system does not tell it.
std::string OwnFile();
// The path of `name` in the folder of the running program; `name` alone if that is unknown.
std::string BesideOwnFile(const std::string& name);

}  // namespace orvelle::linux
