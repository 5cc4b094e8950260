#include "adapters/speech/PacketQueue.h"

#include <algorithm>
#include <utility>

namespace orvelle::speech {

namespace {

constexpr std::size_t MostPackets = MostBlocksInHand + 10;  // those that hold nothing but an end count as well

}  // namespace

bool PacketQueue::Put(const HeardVoice& packet, const OpusPacket& opus) {
    auto place = packets.end();
    while (place != packets.begin() && BlocksBetween(packet.Sequence, std::prev(place)->Sequence) > 0) --place;
    if (place != packets.begin() && std::prev(place)->Sequence == packet.Sequence) return false;

    Packet kept;
    if (!spare.empty()) {
        kept = std::move(spare.back());
        spare.pop_back();
    }
    kept.Sequence = packet.Sequence;
    kept.Opus = opus;
    kept.IsLast = packet.IsLast;
    kept.Data.assign(packet.Opus.begin(), packet.Opus.end());
    packets.insert(place, std::move(kept));
    return true;
}

void PacketQueue::RemoveFirst() {
    spare.push_back(std::move(packets.front()));
    packets.erase(packets.begin());
}

void PacketQueue::Clear() {
    while (!packets.empty()) RemoveFirst();
}

bool PacketQueue::DropTooOld() {
    Long blocks = 0;
    for (const Packet& packet : packets) blocks += packet.Opus.Blocks;
    bool dropped = false;
    while (blocks > MostBlocksInHand || packets.size() > MostPackets) {
        blocks -= packets.front().Opus.Blocks;
        RemoveFirst();
        dropped = true;
    }
    return dropped;
}

std::int64_t PacketQueue::BlocksFrom(std::uint64_t sequence, Long mostGap) const {
    std::int64_t blocks = 0;
    for (const Packet& packet : packets) {
        const std::int64_t gap = BlocksBetween(sequence, packet.Sequence);
        if (gap > 0 && gap <= mostGap) blocks += gap;
        blocks += packet.Opus.Blocks;
        sequence = packet.Sequence + packet.Opus.Blocks;
    }
    return blocks;
}

}  // namespace orvelle::speech
