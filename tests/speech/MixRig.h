// Speakers of the rooms and who hears them, block by block.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "adapters/speech/OutputMix.h"
#include "tests/speech/VoicePath.h"

namespace orvelle::speech {

// One who says the same second of sound again and again.
class Talker {
public:
    Talker(Long room, const Sound& second, std::uint32_t speaker = 1)
        : room(room), speaker(speaker), packets(Encode(second)) {}

    enum class Talk { GoesOn, Ends };
    void Say(OutputMix& mix, Talk talk = Talk::GoesOn) { Say(std::span(&mix, 1), talk); }
    void Say(std::span<OutputMix> mixes, Talk talk = Talk::GoesOn) {
        const std::vector<std::uint8_t>& opus = packets[said % packets.size()].Opus;
        for (OutputMix& mix : mixes) mix.Put(room, {speaker, said, opus, talk == Talk::Ends});
        ++said;
    }

private:
    Long room;
    std::uint32_t speaker;
    std::vector<SentPacket> packets;
    std::uint64_t said = 0;
};

inline void TakeInto(Sound& heard, OutputMix& mix) {
    Block block;
    mix.Take(block);
    heard.insert(heard.end(), block.begin(), block.end());
}

// What is heard of him in so many blocks.
inline Sound Heard(OutputMix& mix, Talker& talker, std::size_t blocks) {
    Sound heard;
    for (std::size_t block = 0; block < blocks; ++block) {
        talker.Say(mix);
        TakeInto(heard, mix);
    }
    return heard;
}

inline Sound HeardOfNobody(OutputMix& mix, std::size_t blocks) {
    Sound heard;
    for (std::size_t block = 0; block < blocks; ++block) TakeInto(heard, mix);
    return heard;
}

inline float Peak(std::span<const float> sound) {
    float peak = 0;
    for (const float sample : sound) peak = std::max(peak, std::abs(sample));
    return peak;
}

}  // namespace orvelle::speech
