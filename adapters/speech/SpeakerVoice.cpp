#include "adapters/speech/SpeakerVoice.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace orvelle::speech {

namespace {

constexpr Long Second = 1000 / BlockMilliseconds;
// So long after a flood of packets, which only this computer's standing still brings, no more of it comes.
constexpr Long FloodLasts = Second / 5;
constexpr Long BlocksOfPatience = 120 / BlockMilliseconds;
// A gap that is longer is none: the numbers went on elsewhere.
constexpr Long MostGap = BlocksOfPatience;
// What comes so much too late, or late for so long, is no straggler but a speaker who began to count anew.
constexpr Long MostBehind = 25;
constexpr Long MostBlocksLate = 10;
// How long after a loss the next one is expected.
constexpr Long LossLasts = 10 * Second;

// A voice that stops within a wave would click.
void FadeOut(Block& block) {
    constexpr std::size_t Faded = BlockSamples / 2;
    for (std::size_t index = 0; index < Faded; ++index) {
        block[BlockSamples - 1 - index] *= static_cast<float>(index) / Faded;
    }
}

void FadeInto(Block& block, const Block& next) {
    for (std::size_t index = 0; index < BlockSamples; ++index) {
        block[index] += (next[index] - block[index]) * (static_cast<float>(index + 1) / BlockSamples);
    }
}

}  // namespace

void SpeakerVoice::Put(const HeardVoice& packet) {
    const std::optional<OpusPacket> opus = ReadOpusPacket(packet.Opus);
    if (!opus && !packet.IsLast) return;

    const Arrival arrival = ArrivalOf(packet.Sequence, opus ? opus->Blocks : 1);
    if (arrival == Arrival::Anew) {
        packets.Clear();
        playing = isNextKnown = false;
    }
    if (arrival == Arrival::Late || !packets.Put(packet, opus.value_or(OpusPacket()))) ++counts.Late;
    if (!packets.DropTooOld()) return;
    if (playing) next = packets.First().Sequence;
    blocksToSettle = FloodLasts;
    leastInHand = MostBlocksInHand;
}

SpeakerVoice::Arrival SpeakerVoice::ArrivalOf(std::uint64_t sequence, Long blocks) {
    const std::int64_t behind = isNextKnown ? BlocksBetween(sequence, next) : 0;
    if (behind <= 0) {
        blocksLate = 0;
        return Arrival::InTime;
    }
    blocksLate += blocks;
    const bool isTalkLongOver = !playing && blocksSilent > MostBehind;
    if (!isTalkLongOver && behind <= MostBehind && blocksLate < MostBlocksLate) return Arrival::Late;
    blocksLate = 0;
    return Arrival::Anew;
}

bool SpeakerVoice::Take(Block& block) {
    if (!playing) {
        blocksSilent = std::min(blocksSilent + 1, Second);
        if (packets.IsEmpty()) return false;
        Begin();
    }

    leastInHand = std::min(leastInHand, BlocksInHand());
    NextBlock(block);
    LeaveOutSurplus(block);
    if (!playing) FadeOut(block);
    return true;
}

void SpeakerVoice::Begin() {
    decoder.Restart();
    prepared = {};
    next = packets.First().Sequence;
    isNextKnown = playing = true;
    isLast = false;
    blocksAhead = blocksSilent = blocksOfSecond = 0;
    leastInHand = MostBlocksInHand;
}

void SpeakerVoice::NextBlock(Block& block) {
    if (prepared.empty()) Prepare();
    std::copy_n(prepared.begin(), BlockSamples, block.begin());
    prepared = prepared.subspan(BlockSamples);
    if (prepared.empty() && (isLast || blocksAhead >= BlocksOfPatience)) playing = false;
    blocksSinceLoss += blocksSinceLoss < LossLasts ? 1 : 0;
}

// One block or more.
void SpeakerVoice::Prepare() {
    while (!packets.IsEmpty() && BlocksBetween(next, packets.First().Sequence) < 0) {
        packets.RemoveFirst();
        ++counts.Late;
    }
    if (packets.IsEmpty()) {
        ++blocksAhead;
        Conceal();
        return;
    }

    std::int64_t gap = BlocksBetween(next, packets.First().Sequence);
    if (gap > MostGap)
        next += gap;
    else if (gap > 0)
        SkipConcealed(gap);
    blocksAhead = 0;

    gap = BlocksBetween(next, packets.First().Sequence);
    if (gap > 0)
        PrepareMissing(gap);
    else
        PrepareFirst();
}

// Blocks that are known now to be lost, but were made up before, for want of anything. As many of them count as heard
// as leave what is needed in hand.
void SpeakerVoice::SkipConcealed(std::int64_t gap) {
    blocksSinceLoss = 0;
    const std::int64_t toSpare = std::max<std::int64_t>(BlocksInHand() - BlocksNeeded() - (blocksOfPacket - 1), 0);
    next += std::min({gap, toSpare, std::int64_t{blocksAhead}});
}

void SpeakerVoice::PrepareMissing(std::int64_t gap) {
    const PacketQueue::Packet& following = packets.First();
    if (following.Opus.RepairBlocks == gap) {
        prepared = decoder.Restore(following.Data, following.Opus.RepairBlocks);
        counts.Restored += prepared.size() / BlockSamples;
        next += prepared.size() / BlockSamples;
    }
    if (!prepared.empty()) return;
    ++next;
    Conceal();
}

void SpeakerVoice::PrepareFirst() {
    const PacketQueue::Packet& packet = packets.First();
    isLast = packet.IsLast;
    if (packet.Opus.Blocks > 0) {
        blocksOfPacket = packet.Opus.Blocks;
        prepared = decoder.Decode(packet.Data);
        counts.Played += prepared.size() / BlockSamples;
    }
    if (prepared.empty()) Conceal();
    next += packet.Opus.Blocks;
    packets.RemoveFirst();
}

void SpeakerVoice::Conceal() {
    prepared = decoder.Conceal();
    ++counts.Concealed;
}

// Half of it once a second, as a network that is uneven may need it soon; all of it once no more of a flood comes. The
// block becomes a passage from itself to the last one that is left out, whose end the next one follows.
void SpeakerVoice::LeaveOutSurplus(Block& block) {
    const bool isFloodOver = blocksToSettle > 0 && --blocksToSettle == 0;
    if (!isFloodOver && ++blocksOfSecond < Second) return;
    const Long surplus = leastInHand - BlocksNeeded();
    const Long tooMany = isFloodOver ? surplus : (surplus + 1) / 2;
    leastInHand = MostBlocksInHand;
    blocksOfSecond = 0;

    Block last = block;
    for (Long left = tooMany; left > 0 && playing && BlocksInHand() >= BlocksNeeded(); --left) {
        NextBlock(last);
        ++counts.LeftOut;
    }
    if (tooMany > 0) FadeInto(block, last);
}

Long SpeakerVoice::BlocksInHand() const {
    const auto inPackets = static_cast<Long>(packets.BlocksFrom(next, MostGap));
    return static_cast<Long>(prepared.size() / BlockSamples) + inPackets;
}

Long SpeakerVoice::BlocksNeeded() const { return blocksSinceLoss < LossLasts ? 1 + blocksOfPacket : 1; }

}  // namespace orvelle::speech
