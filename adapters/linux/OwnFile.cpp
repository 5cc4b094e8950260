#include "adapters/linux/OwnFile.h"

#include <filesystem>
#include <system_error>

namespace orvelle::linux {

std::string OwnFile() {
    std::error_code error;
    std::string path = std::filesystem::read_symlink("/proc/self/exe", error).string();
    if (error) return "";

    // So the system marks a file that was replaced while the program ran; the new one stands under the old name.
    const std::string replaced = " (deleted)";
    if (path.ends_with(replaced) && !std::filesystem::exists(path, error)) path.resize(path.size() - replaced.size());
    return path;
}

std::string BesideOwnFile(const std::string& name) {
    const std::string own = OwnFile();
    return own.empty() ? name : (std::filesystem::path(own).parent_path() / name).string();
}

}  // namespace orvelle::linux
