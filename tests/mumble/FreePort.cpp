#include "tests/mumble/FreePort.h"

#include <arpa/inet.h>
#include <sys/socket.h>

#include <random>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::mumble {

namespace {

constexpr std::uint16_t First = 20000;
constexpr std::uint16_t Last = 32000;

using Act = int(int, const sockaddr*, socklen_t);

bool Can(Act* act, int kind, std::uint16_t port) {
    const FileDescriptor opened(socket(AF_INET, kind | SOCK_CLOEXEC, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return act(opened.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

}  // namespace

std::uint16_t FreePort() {
    std::random_device chance;
    for (int attempt = 0; attempt < 100; ++attempt) {
        const auto port = std::uniform_int_distribution<std::uint16_t>(First, Last)(chance);
        if (Can(bind, SOCK_STREAM, port) && Can(bind, SOCK_DGRAM, port)) return port;
    }
    return 0;
}

bool IsListenedTo(std::uint16_t port) { return Can(connect, SOCK_STREAM, port); }

}  // namespace orvelle::mumble
