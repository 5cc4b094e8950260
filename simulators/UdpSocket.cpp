#include "simulators/UdpSocket.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <array>

namespace orvelle::simulators {

namespace {

sockaddr_in AddressOf(UdpPlace place) {
    sockaddr_in made{};
    made.sin_family = AF_INET;
    made.sin_port = htons(place.Port);
    made.sin_addr.s_addr = htonl(place.Address);
    return made;
}

UdpPlace PlaceAt(const sockaddr_in& address) { return {ntohl(address.sin_addr.s_addr), ntohs(address.sin_port)}; }

}  // namespace

FileDescriptor OpenUdp() { return FileDescriptor(socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)); }

bool BindUdp(const FileDescriptor& socket, UdpPlace place) {
    const sockaddr_in own = AddressOf(place);
    return bind(socket.Number(), reinterpret_cast<const sockaddr*>(&own), sizeof(own)) == 0;
}

UdpPlace PlaceOf(const FileDescriptor& socket) {
    sockaddr_in own{};
    socklen_t length = sizeof(own);
    getsockname(socket.Number(), reinterpret_cast<sockaddr*>(&own), &length);
    return PlaceAt(own);
}

std::optional<UdpPacket> ReceiveUdp(const FileDescriptor& socket, std::span<char> room) {
    sockaddr_in sender{};
    socklen_t length = sizeof(sender);
    const ssize_t size =
        recvfrom(socket.Number(), room.data(), room.size(), 0, reinterpret_cast<sockaddr*>(&sender), &length);
    if (size < 0) return std::nullopt;
    return UdpPacket{{room.data(), static_cast<std::size_t>(size)}, PlaceAt(sender)};
}

ssize_t SendUdp(const FileDescriptor& socket, std::string_view packet, UdpPlace receiver) {
    const sockaddr_in to = AddressOf(receiver);
    return sendto(socket.Number(), packet.data(), packet.size(), MSG_NOSIGNAL, reinterpret_cast<const sockaddr*>(&to),
                  sizeof(to));
}

void LeaveOutUdp(const FileDescriptor& socket) {
    std::array<char, 1> byte{};
    while (ReceiveUdp(socket, byte)) continue;
}

std::string Dotted(std::uint32_t address) {
    const in_addr bytes{htonl(address)};
    std::array<char, INET_ADDRSTRLEN> text{};
    inet_ntop(AF_INET, &bytes, text.data(), text.size());
    return text.data();
}

}  // namespace orvelle::simulators
