#include "adapters/mumble/RoomAddress.h"

#include <cctype>
#include <string_view>

#include "adapters/shared/HostAndPort.h"

namespace orvelle::mumble {

namespace {

// Bytes. The server's own bounds are longer; room is left in a user's name for the number of the room.
constexpr std::size_t ChannelBound = 200;
constexpr std::size_t UserBound = 100;

constexpr std::string_view Blanks = " \t\r\n";

std::string_view WithoutBlanksAround(std::string_view text) {
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

bool IsPlain(char character, std::string_view others) {
    const auto byte = static_cast<unsigned char>(character);
    return (byte < 0x80 && std::isalnum(byte) != 0) || others.find(character) != others.npos;
}

// As it is, or as the mark and two hexadecimal digits.
std::string Written(char character, std::string_view plain, char mark) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(character);
    if (IsPlain(character, plain)) return {character};
    return {mark, Digits[byte >> 4], Digits[byte & 0xF]};
}

}  // namespace

std::optional<RoomAddress> ReadRoomAddress(const std::string& address, std::string& why) {
    const std::size_t slash = address.find('/');
    const std::string_view server = WithoutBlanksAround(std::string_view(address).substr(0, slash));
    const std::string_view channel =
        slash == address.npos ? "" : WithoutBlanksAround(std::string_view(address).substr(slash + 1));
    const std::optional<HostAndPort> place = ReadHostAndPort(server, DefaultPort);

    std::string name;
    for (const char character : channel.substr(0, ChannelBound + 1)) name += Written(character, " _-=()[]{}@|", '#');
    if (server.empty())
        why = "The room's address names no voice server: it is to be server/channel.";
    else if (!place)
        why = "The room's address names a voice server that can't be one.";
    else if (channel.empty())
        why = "The room's address names no channel: it is to be server/channel.";
    else if (name.size() > ChannelBound)
        why = "The name of the room's channel is too long.";
    else
        return RoomAddress{InLowerCase(*place).Host, static_cast<std::uint16_t>(place->Port), name};
    return std::nullopt;
}

std::string UserName(const std::string& clientName, Long room) {
    std::string name;
    for (const char character : clientName) {
        if (Blanks.find(character) != Blanks.npos) continue;
        const std::string written = Written(character, "_-()[]{}@|", '=');
        if (name.size() + written.size() > UserBound) break;
        name += written;
    }
    return name + "." + std::to_string(room + 1);
}

}  // namespace orvelle::mumble
