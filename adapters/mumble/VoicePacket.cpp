#include "adapters/mumble/VoicePacket.h"

#include <limits>

#include "adapters/mumble/Varint.h"

namespace orvelle::mumble {

namespace {

constexpr std::uint8_t OpusMark = 0x80;  // in the upper three bits; the target is in the others
constexpr std::uint8_t PingMark = 0x20;
constexpr std::uint8_t KindMask = 0xE0;
constexpr std::uint64_t LastMark = 0x2000;  // in the length

}  // namespace

std::vector<std::uint8_t> WriteVoice(VoiceTarget target, std::uint64_t sequence, std::span<const std::uint8_t> opus,
                                     TalkEnd end) {
    if (opus.size() > VoicePacketBound) return {};
    std::vector<std::uint8_t> packet{static_cast<std::uint8_t>(OpusMark | static_cast<std::uint8_t>(target))};
    AppendVarint(packet, sequence);
    AppendVarint(packet, opus.size() | (end == TalkEnd::Yes ? LastMark : 0));
    packet.insert(packet.end(), opus.begin(), opus.end());
    return packet.size() <= VoicePacketBound ? packet : std::vector<std::uint8_t>();
}

std::optional<speech::HeardVoice> ReadVoice(std::span<const std::uint8_t> packet) {
    if (packet.empty() || packet.size() > VoicePacketBound || (packet[0] & KindMask) != OpusMark) return std::nullopt;
    packet = packet.subspan(1);
    const std::optional<std::uint64_t> session = TakeVarint(packet);
    const std::optional<std::uint64_t> sequence = session ? TakeVarint(packet) : std::nullopt;
    const std::optional<std::uint64_t> length = sequence ? TakeVarint(packet) : std::nullopt;
    if (!length || *session > std::numeric_limits<std::uint32_t>::max() ||
        *sequence > std::numeric_limits<std::int64_t>::max())
        return std::nullopt;

    const bool isLast = (*length & LastMark) != 0;
    const std::uint64_t size = *length & ~LastMark;
    if (size > packet.size() || (size == 0 && !isLast)) return std::nullopt;
    return speech::HeardVoice{static_cast<std::uint32_t>(*session), *sequence, packet.first(size), isLast};
}

std::vector<std::uint8_t> WritePing(std::uint64_t timestamp) {
    std::vector<std::uint8_t> packet{PingMark};
    AppendVarint(packet, timestamp);
    return packet;
}

std::optional<std::uint64_t> ReadPing(std::span<const std::uint8_t> packet) {
    if (packet.empty() || packet[0] != PingMark) return std::nullopt;
    packet = packet.subspan(1);
    return TakeVarint(packet);
}

}  // namespace orvelle::mumble
