// UDP over IPv4 as readers of simulators use it: sockets that never wait. Addresses and ports are numbers as this
// computer has them. What fails tells why by errno.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::simulators {

struct UdpPlace {
    std::uint32_t Address = 0;  // 0x7F000001 is 127.0.0.1, 0 any
    std::uint16_t Port = 0;     // 0 any that is free
};

struct UdpPacket {
    std::string_view Bytes;  // in the room that was given for it
    UdpPlace Sender;
};

FileDescriptor OpenUdp();
bool BindUdp(const FileDescriptor& socket, UdpPlace place);
UdpPlace PlaceOf(const FileDescriptor& socket);

// Nothing where none has come; one that is longer than the room is cut.
std::optional<UdpPacket> ReceiveUdp(const FileDescriptor& socket, std::span<char> room);
// How many bytes were sent, -1 for none.
ssize_t SendUdp(const FileDescriptor& socket, std::string_view packet, UdpPlace receiver);
// What has come by now and wasn't received yet is passed over.
void LeaveOutUdp(const FileDescriptor& socket);

std::string Dotted(std::uint32_t address);  // "127.0.0.1"

}  // namespace orvelle::simulators
