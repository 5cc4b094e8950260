// The program path: the folders in which the system looks for a program that is named without one.
#pragma once

#include <string>

namespace orvelle::linux {

// Full path of the first program of that name, "" if there is none. Asked by whoever starts programs or looks which are
// installed.
std::string SearchPath(const std::string& name);

// Whether a program's file stands there that this user may run.
bool IsProgram(const std::string& file);

}  // namespace orvelle::linux
