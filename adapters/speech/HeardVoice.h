// One packet of somebody's voice as it came out of a room, for whoever mixes it.
#pragma once

#include <cstdint>
#include <span>

namespace orvelle::speech {

struct HeardVoice {
    std::uint32_t Speaker = 0;           // tells those of one room apart
    std::uint64_t Sequence = 0;          // of its first block; counts blocks of ten milliseconds
    std::span<const std::uint8_t> Opus;  // one or more blocks; good during the call only
    bool IsLast = false;                 // of this talk
};

}  // namespace orvelle::speech
