// The text of an entry in the autostart folder, which the user and the desktop write, too: what it starts, whether it
// is switched on, and what becomes of it when the program is to be started by another command line.
#pragma once

#include <string>
#include <string_view>

namespace orvelle::linux {

// An entry of our own for that command line, with the name, comment and icon of the panel's entry in the menu.
std::string NewAutostartEntry(const std::string& commandLine);
// The command line that the entry starts at the beginning of a session; "" if it starts none.
std::string CommandLineOfEntry(const std::string& entry);
// The entry, switched on. Its command line becomes `commandLine` where it was `before`, which we wrote; any other was
// written by the user and stays.
std::string ChangedAutostartEntry(std::string_view entry, const std::string& before, const std::string& commandLine);

}  // namespace orvelle::linux
