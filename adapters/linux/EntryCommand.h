// The command of a desktop entry in the form that the registry gives a shell command: the program's full path in
// quotes, its arguments, and "%1" in quotes in the place of the URL.
#pragma once

#include <filesystem>
#include <string>

namespace orvelle::linux {

// "" where the entry starts no program that is installed: it is no application, hidden, its command can't be read, or
// has arguments that the form can't hold, which knows no quote inside quotes.
std::string ShellCommandOf(const std::filesystem::path& entry);

}  // namespace orvelle::linux
