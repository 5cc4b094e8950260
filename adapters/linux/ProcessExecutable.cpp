#include "adapters/linux/ProcessExecutable.h"

#include <filesystem>
#include <fstream>

namespace orvelle::linux {

std::string ExecutableOf(pid_t process) {
    const std::filesystem::path folder = std::filesystem::path("/proc") / std::to_string(process);
    std::error_code failed;
    std::string name = std::filesystem::read_symlink(folder / "exe", failed).filename();
    // What an update has replaced while it runs.
    constexpr std::string_view Replaced = " (deleted)";
    if (name.ends_with(Replaced)) name.resize(name.size() - Replaced.size());
    if (name.empty()) std::getline(std::ifstream(folder / "comm"), name);
    return name;
}

}  // namespace orvelle::linux
