// Packets of voice and of pings, as they stand within the encryption of UDP or in a message UdpTunnel. Malformed ones
// are refused: what comes out lies within the packet and within the bounds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "adapters/speech/HeardVoice.h"

namespace orvelle::mumble {

constexpr std::size_t VoicePacketBound = 1020;  // bytes, before encryption

enum class VoiceTarget : std::uint8_t { Channel = 0, Loopback = 31 };  // Loopback: back to ourselves, for a test
enum class TalkEnd : std::uint8_t { No, Yes };

// What we say; `sequence` counts blocks of ten milliseconds. Empty where Opus is too long for a packet.
std::vector<std::uint8_t> WriteVoice(VoiceTarget target, std::uint64_t sequence, std::span<const std::uint8_t> opus,
                                     TalkEnd end);
// What the server tells of others: Speaker is a session. Opus lies within `packet`, and is empty in a last one only.
// None where it is no voice, not Opus or malformed; a position behind the voice means nothing to us.
std::optional<speech::HeardVoice> ReadVoice(std::span<const std::uint8_t> packet);

// The server sends the same packet back.
std::vector<std::uint8_t> WritePing(std::uint64_t timestamp);
std::optional<std::uint64_t> ReadPing(std::span<const std::uint8_t> packet);

}  // namespace orvelle::mumble
