#include "adapters/linux/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <system_error>

#include "adapters/shared/Environment.h"

namespace orvelle::linux {

namespace {

// ":0" and ":0.1" are screens of one display.
std::string Session() {
    std::string display = Variable("DISPLAY");
    if (display.empty()) return Variable("WAYLAND_DISPLAY");
    const std::size_t colon = display.rfind(':');
    const std::size_t screen = display.find('.', colon == std::string::npos ? 0 : colon);
    return display.substr(0, screen);
}

std::string AsFileName(std::string text) {
    for (char& character : text)
        if (character == '/') character = '_';
    return text;
}

// A folder that another user put there could be used to keep this one's panel from starting.
bool IsOwnFolder(const std::string& folder) {
    struct stat status;
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == getuid() &&
           (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

}  // namespace

InstanceLock InstanceLock::OfThisSession() {
    std::string folder = Variable("XDG_RUNTIME_DIR");
    if (folder.empty()) folder = "/tmp/OrvelleCP-" + std::to_string(getuid());
    return InstanceLock(folder, "OrvelleCP-" + AsFileName(Session()));
}

bool InstanceLock::Take() {
    if (file) return true;
    mkdir(folder.c_str(), S_IRWXU);
    if (!IsOwnFolder(folder)) return GoOnWithout("the folder " + folder + " is not this user's alone");
    const std::string path = folder + "/" + name + ".lock";
    FileDescriptor opened(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
    if (!opened) return GoOnWithout(path + " can't be opened: " + std::generic_category().message(errno));
    if (flock(opened.Number(), LOCK_EX | LOCK_NB) != 0)
        return errno != EWOULDBLOCK &&
               GoOnWithout(path + " can't be locked: " + std::generic_category().message(errno));
    problem.clear();
    file = std::move(opened);
    return true;
}

bool InstanceLock::GoOnWithout(const std::string& reason) {
    problem = "Whether the program runs a second time can't be known, since " + reason + ".";
    return true;
}

}  // namespace orvelle::linux
