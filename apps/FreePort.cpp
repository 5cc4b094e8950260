#include "apps/FreePort.h"

#include <netinet/in.h>
#include <sys/socket.h>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle {

int FreePort(int otherwise) {
    const FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    socklen_t size = sizeof address;
    if (bind(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        getsockname(socket.Number(), reinterpret_cast<sockaddr*>(&address), &size) != 0)
        return otherwise;
    return ntohs(address.sin_port);
}

}  // namespace orvelle
