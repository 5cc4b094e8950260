#include "adapters/linux/ControlGroup.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

namespace {

namespace fs = std::filesystem;

// "" if there are no such groups.
fs::path Mount() {
    std::ifstream mounts("/proc/self/mounts");
    std::string device;
    std::string folder;
    std::string kind;
    for (std::string rest; mounts >> device >> folder >> kind && std::getline(mounts, rest);)
        if (kind == "cgroup2") return folder;
    return "";
}

// As seen from the mount: "/user.slice/panel.scope"; "" if it is not told.
fs::path OwnGroup() {
    const std::string mark = "0::";
    std::ifstream groups("/proc/self/cgroup");
    for (std::string line; std::getline(groups, line);)
        if (line.starts_with(mark)) return line.substr(mark.size());
    return "";
}

}  // namespace

bool LeaveControlGroup(const std::string& name) {
    const fs::path mount = Mount();
    const fs::path own = OwnGroup();
    if (mount.empty() || !own.has_filename()) return false;
    const fs::path group = mount / own.parent_path().relative_path() / name;
    const bool isMade = mkdir(group.c_str(), S_IRWXU) == 0;
    const FileDescriptor members(open((group / "cgroup.procs").c_str(), O_WRONLY | O_CLOEXEC));
    // "0" is whoever writes it.
    const bool isIn = members && write(members.Number(), "0", 1) == 1;
    if (isMade && !isIn) rmdir(group.c_str());
    return isIn;
}

}  // namespace orvelle::linux
