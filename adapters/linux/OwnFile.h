// Where this program's own file lies, and from there what belongs to it: beside it, as in the build folder, or in the
// places of the prefix that it is installed under.
#pragma once

#include <filesystem>
#include <string>

namespace orvelle::linux {

// Full path of the running program, "" if the system does not tell it.
std::string OwnFile();
// The path of `name` in the folder of the running program; `name` alone if that is unknown.
std::string BesideOwnFile(const std::string& name);
// The path of a program that isn't for people, but for this one to start: in libexec/orvelle under the prefix if it is
// there, else beside this program.
std::string OwnProgram(const std::string& name);
// The prefix under which this program is installed, as /usr: the folder above bin or libexec.
std::filesystem::path OwnPrefix();

}  // namespace orvelle::linux
