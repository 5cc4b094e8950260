// What the encoder makes of the microphone's blocks.
#include "adapters/speech/VoiceEncoder.h"

#include <gtest/gtest.h>

#include <limits>

#include "adapters/speech/OpusPacket.h"
#include "tests/speech/Goertzel.h"
#include "tests/speech/VoicePath.h"

namespace orvelle::speech {

namespace {

Block BlockOf(const Sound& sound, std::size_t block) {
    Block samples;
    std::copy_n(sound.begin() + block * BlockSamples, BlockSamples, samples.begin());
    return samples;
}

std::vector<std::uint8_t> Kept(std::span<const std::uint8_t> packet) { return {packet.begin(), packet.end()}; }

TEST(EncoderTest, ToneKeepsItsFrequency) {
    for (const double frequency : {440.0, 1000.0, 2500.0}) {
        Listener listener;
        listener.Hear(Encode(Tone(frequency, 0.3, 1000)), AtOnce());
        const auto heard = Blocks(listener.Heard, 20, 60);
        EXPECT_NEAR(ToneAmplitude(heard, frequency), 0.3, 0.1) << frequency;
        for (const double other : {frequency * 0.7, frequency * 1.4}) {
            EXPECT_GT(ToneDecibels(heard, frequency), ToneDecibels(heard, other) + 20) << frequency << ", " << other;
        }
    }
}

TEST(EncoderTest, PacketsFitWhatTheServersAllow) {
    std::size_t bytes = 0;
    const std::vector<SentPacket> packets = Encode(Vowels(5000));
    for (const SentPacket& packet : packets) {
        bytes += packet.Opus.size();
        const std::optional<OpusPacket> read = ReadOpusPacket(packet.Opus);
        ASSERT_TRUE(read);
        EXPECT_EQ(read->Blocks, 1);
    }
    constexpr double AroundIt = 20 + 8 + 4 + 6;  // IP, UDP, encryption, the servers' own
    const double bitsPerSecond = 8 * 100 * (static_cast<double>(bytes) / packets.size() + AroundIt);
    RecordProperty("bits_per_second", std::to_string(bitsPerSecond));
    EXPECT_LT(bitsPerSecond, 72000);
    EXPECT_LT(8 * 100 * bytes / packets.size(), 35000);
}

TEST(EncoderTest, PacketsRepeatTheOneBefore) {
    const std::vector<SentPacket> packets = Encode(Vowels(2000));
    const auto repeating = std::count_if(packets.begin(), packets.end(), [](const SentPacket& packet) {
        return ReadOpusPacket(packet.Opus)->RepairBlocks == 1;
    });
    EXPECT_GT(repeating, packets.size() * 0.6);  // not those of the quiet parts
}

TEST(EncoderTest, AfterARestartNothingOfTheLastTalkIsLeft) {
    const Sound sound = Vowels(300);
    VoiceEncoder used;
    for (std::size_t block = 0; block < 30; ++block) used.Encode(BlockOf(Tone(700, 0.8, 300), block));
    used.Restart();
    VoiceEncoder fresh;
    for (std::size_t block = 0; block < 30; ++block) {
        ASSERT_EQ(Kept(used.Encode(BlockOf(sound, block))), Kept(fresh.Encode(BlockOf(sound, block)))) << block;
    }
}

TEST(EncoderTest, WhatIsNoSoundDoesNoHarm) {
    VoiceEncoder encoder;
    SpeakerVoice voice;
    std::uint64_t sequence = 0;
    Sound heard;
    const auto say = [&](const Block& block) {
        const std::span<const std::uint8_t> packet = encoder.Encode(block);
        ASSERT_FALSE(packet.empty());
        voice.Put({1, sequence++, packet, false});
        Block taken = Silence;
        ASSERT_TRUE(voice.Take(taken));
        heard.insert(heard.end(), taken.begin(), taken.end());
    };
    for (const float odd : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 1e30F}) {
        Block block;
        block.fill(odd);
        say(block);
        block.fill(-odd);
        say(block);
    }
    const Sound tone = Tone(1000, 0.3, 600);
    for (std::size_t block = 0; block < 60; ++block) say(BlockOf(tone, block));
    EXPECT_NEAR(ToneAmplitude(Blocks(heard, 30, 30), 1000), 0.3, 0.1);
}

}  // namespace

}  // namespace orvelle::speech
