// What a packet of Opus says of itself before it is decoded (RFC 6716, 3 and 4.2). Asked by whoever puts packets in
// order and decodes them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/Types.h"

namespace orvelle::speech {

constexpr Long MostBlocksOfPacket = 12;  // that Opus allows

struct OpusPacket {
    Long Blocks = 0;        // that it holds
    Long RepairBlocks = 0;  // just before it, that can be restored from it; 0 where it repeats nothing
};

// None where it is no packet of Opus, or not one of whole blocks.
std::optional<OpusPacket> ReadOpusPacket(std::span<const std::uint8_t> data);

}  // namespace orvelle::speech
