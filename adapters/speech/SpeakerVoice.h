// The voice of one speaker, from the packets as they come to the blocks as they are heard: in order, at an even pace
// and as soon as it can be. It begins with ten milliseconds in hand. A packet that is missing is restored from the one
// that follows it, else made up from what was heard; where nothing is in hand the delay grows, and where more than
// needed was in hand for a second, half of that is left out; where this computer stood still, all of it. While packets
// get lost, one more is needed in hand, as the next one restores it. Held for each speaker by each output, as outputs
// have clocks of their own.
#pragma once

#include <cstdint>
#include <limits>
#include <span>

#include "adapters/speech/Block.h"
#include "adapters/speech/BlockCounts.h"
#include "adapters/speech/HeardVoice.h"
#include "adapters/speech/PacketQueue.h"
#include "adapters/speech/VoiceDecoder.h"

namespace orvelle::speech {

class SpeakerVoice {
public:
    SpeakerVoice() = default;  // std::bad_alloc where the library has no memory
    SpeakerVoice(const SpeakerVoice&) = delete;
    SpeakerVoice& operator=(const SpeakerVoice&) = delete;

    // Data that is no Opus counts as missing.
    void Put(const HeardVoice& packet);
    // The next ten milliseconds. False where the speaker is silent; the block is then left as it was.
    bool Take(Block& block);
    // The talk is over and was heard to its end: its last packet came, or none for 120 ms. So before the first one.
    bool HasEnded() const { return !playing && packets.IsEmpty(); }
    const BlockCounts& Counted() const { return counts; }

private:
    enum class Arrival { InTime, Late, Anew };

    Arrival ArrivalOf(std::uint64_t sequence, Long blocks);
    void Begin();
    void NextBlock(Block& block);
    void Prepare();
    void PrepareMissing(std::int64_t gap);
    void PrepareFirst();
    void Conceal();
    void SkipConcealed(std::int64_t gap);
    void LeaveOutSurplus(Block& block);
    Long BlocksInHand() const;
    Long BlocksNeeded() const;

    PacketQueue packets;
    VoiceDecoder decoder;
    BlockCounts counts;

    bool playing = false;
    bool isLast = false;              // what is prepared ends the talk
    std::span<const float> prepared;  // decoded and not heard yet
    std::uint64_t next = 0;           // the block to be decoded
    bool isNextKnown = false;         // not before the first talk, nor after numbers that led elsewhere
    Long blocksAhead = 0;             // concealed since the last packet, for want of one
    Long blocksOfPacket = 1;          // that the last one held
    Long blocksSilent = 0;            // taken since the talk's end
    Long blocksLate = 0;              // that came late since one was in time
    Long blocksSinceLoss = std::numeric_limits<Long>::max();
    Long leastInHand = 0;     // before any block of the second that runs
    Long blocksToSettle = 0;  // until what is in hand after a flood is known
    Long blocksOfSecond = 0;
};

}  // namespace orvelle::speech
