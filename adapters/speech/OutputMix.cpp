#include "adapters/speech/OutputMix.h"

#include <algorithm>
#include <cmath>

#include "adapters/speech/Squelch.h"

namespace orvelle::speech {

namespace {

constexpr float LoudestTone = 0.2F;  // at 100
constexpr float LimitBegins = 0.7F;

// As it is up to there, then ever flatter towards full scale.
float Limited(float sample) {
    constexpr float Room = 1 - LimitBegins;
    const float over = std::abs(sample) - LimitBegins;
    if (over <= 0) return sample;
    return std::copysign(std::min(LimitBegins + Room * std::tanh(over / Room), 1.0F), sample);
}

}  // namespace

void OutputMix::Route(Long room, bool on) {
    if (IsRoom(room)) rooms[room].Route(on);
}

void OutputMix::SetVolume(Long percent) { volume.To(static_cast<float>(std::clamp<Long>(percent, 0, 400)) / 100); }

void OutputMix::SetSignalVolume(Long percent) {
    signalVolume.To(static_cast<float>(std::clamp<Long>(percent, 0, 100)) / 100);
}

void OutputMix::SetFilter(bool on) { radio.Switch(on); }

void OutputMix::SetSquelch(double value) { quietest = value > 0 ? HeardDecibels(value) : EveryVoice; }

void OutputMix::Put(Long room, const HeardVoice& packet) {
    if (IsRoom(room)) rooms[room].Put(packet);
}

void OutputMix::Forget(Long room, std::uint32_t speaker) {
    if (IsRoom(room)) rooms[room].Forget(speaker);
}

void OutputMix::Forget(Long room) {
    if (IsRoom(room)) rooms[room].Forget();
}

BlockCounts OutputMix::Counted() const {
    BlockCounts all;
    for (const RoomMix& room : rooms) all += room.Counted();
    return all;
}

void OutputMix::Take(Block& block) {
    Block tones = Silence;
    block = Silence;
    for (RoomMix& room : rooms) room.AddTo(block, tones, quietest);

    const bool somebodyTalks = std::any_of(rooms.begin(), rooms.end(), [](const auto& room) { return room.IsHeard(); });
    if (radio.IsHeard()) radio.Run(block, somebodyTalks);
    for (std::size_t index = 0; index < BlockSamples; ++index) {
        const float voices = block[index] * volume.Next();
        block[index] = Limited(voices + tones[index] * LoudestTone * signalVolume.Next());
    }
}

}  // namespace orvelle::speech
