// The encryption of what goes by UDP: OCB2 with AES-128, and four bytes ahead of each packet, the low byte of its nonce
// and three of its tag. Nonces are counters of 16 bytes, little-endian, incremented before each packet; each side keeps
// its own and the other's. Held by a room's connection from the server's first CryptSetup on.
//
// Nothing of the state changes for a packet that is refused. More than 222 packets lost in a row, and no more is
// understood until one side has told its nonce anew.
#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "adapters/mumble/Ocb2.h"
#include "adapters/mumble/VoicePacket.h"

namespace orvelle::mumble {

constexpr std::size_t CryptHead = 4;
constexpr unsigned LateBound = 32;  // packets: how much later than its followers one may come

class PacketCrypt {
public:
    struct Counts {
        std::uint32_t Good = 0;  // with the late ones
        std::uint32_t Late = 0;
        std::uint32_t Lost = 0;  // that did not come, or not yet
    };

    // std::bad_alloc where the library has no memory.
    PacketCrypt(const CryptBlock& key, const CryptBlock& ownNonce, const CryptBlock& farNonce);

    // Good until the next call; empty where the packet is longer than VoicePacketBound.
    std::span<const std::uint8_t> Encrypt(std::span<const std::uint8_t> plain);
    // Good until the next call. None where the packet is not whole, not from the other side, or was here before.
    std::optional<std::span<const std::uint8_t>> Decrypt(std::span<const std::uint8_t> packet);

    // What the other side asks for when it understands no more.
    const CryptBlock& OwnNonce() const { return ownNonce; }
    // What it answered when we asked.
    void SetFarNonce(const CryptBlock& nonce);
    const Counts& Counted() const { return counts; }

private:
    Ocb2 cipher;
    CryptBlock ownNonce;
    CryptBlock farNonce;              // of the newest packet
    std::bitset<LateBound + 1> seen;  // of the newest and those before it
    Counts counts;
    std::array<std::uint8_t, CryptHead + VoicePacketBound> encrypted{};
    std::array<std::uint8_t, VoicePacketBound> decrypted{};
};

// Of the 16 bytes in a CryptSetup; none where they are not 16.
std::optional<CryptBlock> ReadCryptBlock(std::string_view bytes);

}  // namespace orvelle::mumble
