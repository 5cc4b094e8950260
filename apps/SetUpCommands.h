// What orvelle-setup does for scripts: one command, one line, and an exit status. The line goes to the standard output
// where all is well (status 0), else to the standard error (status 1).
#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace orvelle {

struct SetUpCommand {
    enum class Kind { Window, Join, Leave, Show, Help, Version };

    Kind Wanted = Kind::Window;
    std::string Code;
    std::string Place;                 // "" for the one set-up that is found
    std::filesystem::path DataFolder;  // "" for the usual one
};

// What the command line asks for; nothing where it can't be read.
std::optional<SetUpCommand> ReadSetUpCommand(const std::vector<std::string>& arguments);

// Any but the window; serves a loop of its own meanwhile. The exit status.
int RunSetUpCommand(const SetUpCommand& command, std::ostream& output, std::ostream& errors);

}  // namespace orvelle
