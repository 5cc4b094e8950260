#include "adapters/linux/WaylandDisplay.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <string>

#include "adapters/shared/Environment.h"
#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

bool HasWaylandDisplay() {
    std::string socketFile = Variable("WAYLAND_DISPLAY");
    if (socketFile.empty()) return false;
    if (socketFile.front() != '/') socketFile = Variable("XDG_RUNTIME_DIR") + "/" + socketFile;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socketFile.size() >= sizeof address.sun_path) return false;
    std::ranges::copy(socketFile, address.sun_path);
    const FileDescriptor line(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return line && connect(line.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

}  // namespace orvelle::linux
