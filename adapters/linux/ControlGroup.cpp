#include "adapters/linux/ControlGroup.h"

#include <fcntl.h>
#include <mntent.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

namespace {

// By the C library alone: the guard, which stays in memory, would pay for the streams of the C++ one.
using File = std::unique_ptr<std::FILE, decltype(&std::fclose)>;

// "" if there are no such groups.
std::string Mount() {
    const std::unique_ptr<std::FILE, decltype(&endmntent)> mounts(setmntent("/proc/self/mounts", "re"), &endmntent);
    while (const mntent* const mount = mounts ? getmntent(mounts.get()) : nullptr)
        if (std::string(mount->mnt_type) == "cgroup2") return mount->mnt_dir;
    return "";
}

// The group above ours, as seen from the mount: "/user.slice/" for "/user.slice/panel.scope"; "" if ours is not told,
// or is the topmost.
std::string GroupAbove() {
    const std::string mark = "0::";
    const File groups(std::fopen("/proc/self/cgroup", "re"), &std::fclose);
    std::string group;
    char* line = nullptr;
    std::size_t size = 0;
    while (groups && getline(&line, &size, groups.get()) > 0)
        if (std::string(line).starts_with(mark)) group = std::string(line).substr(mark.size());
    std::free(line);
    while (group.ends_with('\n')) group.pop_back();
    return group == "/" ? "" : group.substr(0, group.rfind('/') + 1);
}

}  // namespace

bool LeaveControlGroup(const std::string& name) {
    const std::string mount = Mount();
    const std::string above = GroupAbove();
    if (mount.empty() || above.empty()) return false;
    const std::string group = mount + above + name;
    const bool isMade = mkdir(group.c_str(), S_IRWXU) == 0;
    const FileDescriptor members(open((group + "/cgroup.procs").c_str(), O_WRONLY | O_CLOEXEC));
    // "0" is whoever writes it.
    const bool isIn = members && write(members.Number(), "0", 1) == 1;
    if (isMade && !isIn) rmdir(group.c_str());
    return isIn;
}

}  // namespace orvelle::linux
