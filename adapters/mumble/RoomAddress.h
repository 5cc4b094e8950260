// Where a room is: the panel's "server/channel" taken apart, and the names by which the channel and we are known at the
// server. Asked by the engine on the panel's thread, before anything is begun, and by the rooms.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Types.h"

namespace orvelle::mumble {

constexpr std::uint16_t DefaultPort = 64738;
constexpr const char* EchoChannel = "echo";

struct RoomAddress {
    std::string Host;  // a name or an address
    std::uint16_t Port = DefaultPort;
    std::string Channel;  // as the server's channel is named, other characters written as #2E

    // Whoever talks there is heard by himself alone: the server sends his voice back.
    bool IsEcho() const { return Channel == EchoChannel; }
    bool operator==(const RoomAddress&) const = default;
};

// None where the address has no server or no channel, or is longer than a name can be; `why` is then a sentence for the
// user. "host:port/channel", "[::1]:port/channel"; the channel goes on to the end.
std::optional<RoomAddress> ReadRoomAddress(const std::string& address, std::string& why);

// The name of the connection of one room: "AAL12 (99)" in room 0 is "AAL12(99).1"; other characters are written as =2E.
std::string UserName(const std::string& clientName, Long room);

}  // namespace orvelle::mumble
