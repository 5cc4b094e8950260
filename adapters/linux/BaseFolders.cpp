#include "adapters/linux/BaseFolders.h"

#include <algorithm>

#include "adapters/shared/Environment.h"

namespace orvelle::linux {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> PartsOf(std::string list) {
    std::vector<std::string> parts;
    list += ':';
    for (std::size_t end; (end = list.find(':')) != std::string::npos; list.erase(0, end + 1))
        if (end > 0) parts.push_back(list.substr(0, end));
    return parts;
}

// Folders that aren't named from the root are to be passed over.
std::vector<fs::path> Folders(const char* own, const char* usualOwn, const char* others, const char* usualOthers) {
    const fs::path named = Variable(own);
    std::vector<fs::path> folders{named.is_absolute() ? named : fs::path(Variable("HOME")) / usualOwn};
    const std::string list = Variable(others);
    for (const fs::path folder : PartsOf(list.empty() ? usualOthers : list))
        if (folder.is_absolute()) folders.push_back(folder);
    return folders;
}

}  // namespace

BaseFolders BaseFolders::OfThisUser() {
    BaseFolders folders{
        Folders("XDG_CONFIG_HOME", ".config", "XDG_CONFIG_DIRS", "/etc/xdg"),
        Folders("XDG_DATA_HOME", ".local/share", "XDG_DATA_DIRS", "/usr/local/share:/usr/share"),
        PartsOf(Variable("XDG_CURRENT_DESKTOP")),
    };
    for (std::string& desktop : folders.Desktops)
        std::transform(desktop.begin(), desktop.end(), desktop.begin(), [](char letter) {
            return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
        });
    return folders;
}

}  // namespace orvelle::linux
