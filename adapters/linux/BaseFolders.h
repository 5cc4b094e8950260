// The desktop's base folders (XDG): where the user's and the system's configuration and data lie, the user's own first
// and the more important before the others. As the environment says, else the usual ones.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvelle::linux {

struct BaseFolders {
    static BaseFolders OfThisUser();

    std::vector<std::filesystem::path> Configuration;
    std::vector<std::filesystem::path> Data;
    // Names of the desktop that runs, in lower case; for files that count on one desktop alone.
    std::vector<std::string> Desktops;
};

}  // namespace orvelle::linux
