// Packets of one speaker that were not heard yet, by their sequence, whose numbers may wrap. Bounded: the oldest give
// way. Steady use allocates nothing, as the memory of packets that were taken serves the next ones.
#pragma once

#include <cstdint>
#include <vector>

#include "adapters/speech/HeardVoice.h"
#include "adapters/speech/OpusPacket.h"

namespace orvelle::speech {

constexpr Long MostBlocksInHand = 50;

// How many blocks `to` comes after `from`; less than 0 where it comes before.
constexpr std::int64_t BlocksBetween(std::uint64_t from, std::uint64_t to) {
    return static_cast<std::int64_t>(to - from);
}

class PacketQueue {
public:
    struct Packet {
        std::uint64_t Sequence = 0;
        OpusPacket Opus;  // without blocks: nothing but the talk's end
        bool IsLast = false;
        std::vector<std::uint8_t> Data;
    };

    // False where one of this number is there.
    bool Put(const HeardVoice& packet, const OpusPacket& opus);
    bool IsEmpty() const { return packets.empty(); }
    const Packet& First() const { return packets.front(); }
    void RemoveFirst();
    void Clear();
    // The first ones, while there are more than may be; whether there were.
    bool DropTooOld();

    // From this number to the end of the last packet, with gaps of up to `mostGap` blocks.
    std::int64_t BlocksFrom(std::uint64_t sequence, Long mostGap) const;

private:
    std::vector<Packet> packets;
    std::vector<Packet> spare;
};

}  // namespace orvelle::speech
