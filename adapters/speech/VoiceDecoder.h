// Decodes the packets of one speaker, and makes up what is missing. What it gives is good until its next call, a whole
// number of blocks, and always within what a mix can take. Asked by the speaker's voice for each packet, in their
// order.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>

#include "adapters/speech/Block.h"
#include "adapters/speech/OpusPacket.h"

struct OpusDecoder;

namespace orvelle::speech {

class VoiceDecoder {
public:
    VoiceDecoder();  // std::bad_alloc where the library has no memory

    // Empty where the library refuses the data.
    std::span<const float> Decode(std::span<const std::uint8_t> opus);
    // So many blocks that were lost just before this packet, from what it repeats of them. Empty as above.
    std::span<const float> Restore(std::span<const std::uint8_t> opus, Long blocks);
    // One block that is missing, by what was heard before.
    std::span<const float> Conceal();
    // Before a new talk: nothing of the last one is heard in it.
    void Restart();

private:
    enum class Part { Itself, RepeatedInIt };
    struct Destroy {
        void operator()(OpusDecoder* gone) const;
    };

    std::span<const float> Run(std::span<const std::uint8_t> opus, Long mostBlocks, Part part);

    std::unique_ptr<OpusDecoder, Destroy> decoder;
    std::array<float, MostBlocksOfPacket * BlockSamples> sound{};
};

}  // namespace orvelle::speech
