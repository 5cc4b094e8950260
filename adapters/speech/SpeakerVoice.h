// The voice of one speaker, from the packets as they come to the blocks as they are heard: in order, at an even pace and
// as soon as it can be. It begins with ten milliseconds in hand. A packet that is missing is restored from the one that
// follows it, else made up from what was heard; where nothing is in hand the delay grows, and where more than needed
// was in hand for a second, one block is left out. Held for each speaker by each output, as outputs have clocks of their
// own.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

#include "adapters/speech/Block.h"
#include "adapters/speech/HeardVoice.h"

struct OpusDecoder;

namespace orvelle::speech {

class SpeakerVoice {
public:
    struct Counts {
        unsigned long Restored = 0;   // blocks, from the packet that followed them
        unsigned long Concealed = 0;  // blocks that were made up
        unsigned long Late = 0;       // packets that came after their moment, or twice
        unsigned long LeftOut = 0;    // blocks, so that the delay shrinks
    };

    SpeakerVoice();  // std::bad_alloc where the library has no memory

    // Data that is no Opus counts as missing.
    void Put(const HeardVoice& packet);
    // The next ten milliseconds. False where the speaker is silent; the block is then left as it was.
    bool Take(Block& block);
    // The talk is over and was heard to its end: its last packet came, or none for 120 ms.
    bool HasEnded() const;
    const Counts& Counted() const { return counts; }

private:
    struct Destroy {
        void operator()(OpusDecoder* gone) const;
    };

    std::unique_ptr<OpusDecoder, Destroy> decoder;
    Counts counts;
};

}  // namespace orvelle::speech
