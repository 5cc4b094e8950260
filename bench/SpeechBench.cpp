// What ten milliseconds of the voice rooms cost at one output: three rooms with five speakers each, and what encoding
// the microphone's block costs. A voice that is heard in real time has ten milliseconds for all of it.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <span>
#include <vector>

#include "adapters/speech/OutputMix.h"
#include "adapters/speech/VoiceEncoder.h"

namespace orvelle::speech {

namespace {

constexpr std::uint64_t BlocksOfSpeech = 100;

// Something like a voice: harmonics that come and go four times a second.
Block Voice(std::uint64_t block) {
    Block sound = Silence;
    for (std::size_t index = 0; index < BlockSamples; ++index) {
        const double time = static_cast<double>((block % BlocksOfSpeech) * BlockSamples + index) / SampleRate;
        const double loudness = 0.05 * (1.2 + std::sin(2 * std::numbers::pi * 4 * time));
        for (int harmonic = 1; harmonic <= 8; ++harmonic) {
            sound[index] += loudness * std::sin(2 * std::numbers::pi * 130 * harmonic * time);
        }
    }
    return sound;
}

std::vector<std::vector<std::uint8_t>> Speech() {
    VoiceEncoder encoder;
    std::vector<std::vector<std::uint8_t>> packets;
    for (std::uint64_t block = 0; block < BlocksOfSpeech; ++block) {
        const std::span<const std::uint8_t> packet = encoder.Encode(Voice(block));
        packets.emplace_back(packet.begin(), packet.end());
    }
    return packets;
}

void PutAll(OutputMix& mix, std::uint32_t speakers, std::uint64_t block,
            const std::vector<std::vector<std::uint8_t>>& speech) {
    for (Long room = 0; room < Rooms; ++room) {
        for (std::uint32_t speaker = 0; speaker < speakers; ++speaker) {
            mix.Put(room, {speaker, block, speech[(block + 7 * speaker) % BlocksOfSpeech], false});
        }
    }
}

// Of each of three rooms so many speak; with the radio's effect.
void TakeBlock(benchmark::State& state) {
    const std::vector<std::vector<std::uint8_t>> speech = Speech();
    OutputMix mix;
    for (Long room = 0; room < Rooms; ++room) mix.Route(room, true);
    mix.SetFilter(true);
    Block heard = Silence;
    float loudest = 0;
    std::uint64_t block = 0;
    for (auto iteration : state) {
        PutAll(mix, static_cast<std::uint32_t>(state.range(0)), block++, speech);
        mix.Take(heard);
        loudest = std::max(loudest, heard[0]);
    }
    if (state.range(0) > 0 && loudest == 0) state.SkipWithError("nothing is heard");
}
BENCHMARK(TakeBlock)->Arg(0)->Arg(1)->Arg(5)->Unit(benchmark::kMicrosecond);

void EncodeBlock(benchmark::State& state) {
    std::vector<Block> blocks;
    for (std::uint64_t block = 0; block < BlocksOfSpeech; ++block) blocks.push_back(Voice(block));
    VoiceEncoder encoder;
    std::size_t next = 0;
    bool isEmpty = false;
    for (auto iteration : state) isEmpty |= encoder.Encode(blocks[next++ % blocks.size()]).empty();
    if (isEmpty) state.SkipWithError("a block was refused");
}
BENCHMARK(EncodeBlock)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace orvelle::speech
