#include "tests/mqtt/broker/LoopbackPorts.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <cstdint>

namespace orvelle::mqtt {

namespace {

sockaddr_in Loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
}

FileDescriptor NewSocket() { return FileDescriptor(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)); }

// With any port.
FileDescriptor BoundSocket() {
    FileDescriptor bound = NewSocket();
    const sockaddr_in address = Loopback(0);
    EXPECT_EQ(bind(bound.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    return bound;
}

int PortOf(const FileDescriptor& bound) {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    return getsockname(bound.Number(), reinterpret_cast<sockaddr*>(&address), &size) == 0 ? ntohs(address.sin_port) : 0;
}

}  // namespace

LoopbackListener::LoopbackListener() : Socket(BoundSocket()) { EXPECT_EQ(listen(Socket.Number(), 8), 0); }

int LoopbackListener::Port() const { return PortOf(Socket); }

}  // namespace orvelle::mqtt
