// Makes packets of the microphone's blocks: Opus, some 28 kbit/s at a variable rate, each packet also holding the one
// before roughly, so that a listener who misses one restores it. A block is encoded once for all rooms. Called by the
// voice thread for each block while somebody talks.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>

#include "adapters/speech/Block.h"

struct OpusEncoder;

namespace orvelle::speech {

class VoiceEncoder {
public:
    VoiceEncoder();  // std::bad_alloc where the library has no memory

    // Good until the next call; empty where the library refuses the block.
    std::span<const std::uint8_t> Encode(const Block& block);
    // Before a new talk: nothing of the last one goes into its first packet.
    void Restart();

private:
    struct Destroy {
        void operator()(OpusEncoder* gone) const;
    };

    std::unique_ptr<OpusEncoder, Destroy> encoder;
    std::array<std::uint8_t, 1000> packet{};  // the most that a packet of the rooms holds
};

}  // namespace orvelle::speech
