#include "adapters/linux/OwnFile.h"

#include <system_error>

namespace orvelle::linux {

namespace {

namespace fs = std::filesystem;

// Under the prefix.
constexpr const char* PrivatePrograms = "libexec";
constexpr const char* Ours = "orvelle";

}  // namespace

std::string OwnFile() {
    std::error_code error;
    std::string path = fs::read_symlink("/proc/self/exe", error).string();
    if (error) return "";

    // So the system marks a file that was replaced while the program ran; the new one stands under the old name.
    const std::string replaced = " (deleted)";
    if (path.ends_with(replaced) && !fs::exists(path, error)) path.resize(path.size() - replaced.size());
    return path;
}

std::string BesideOwnFile(const std::string& name) {
    const std::string own = OwnFile();
    return own.empty() ? name : (fs::path(own).parent_path() / name).string();
}

fs::path OwnPrefix() {
    const fs::path folder = fs::path(OwnFile()).parent_path();
    const fs::path above = folder.parent_path();
    const bool isPrivate = above.filename() == PrivatePrograms && folder.filename() == Ours;
    return isPrivate ? above.parent_path() : above;
}

std::string OwnProgram(const std::string& name) {
    fs::path file = OwnPrefix() / PrivatePrograms / Ours / name;
    std::error_code error;
    return fs::exists(file, error) ? file.string() : BesideOwnFile(name);
}

}  // namespace orvelle::linux
