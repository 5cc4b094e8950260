// The order of a voice's packets: talks, numbers that jump, wrap and go back, packets of several blocks, data that is
// none.
#include "adapters/speech/SpeakerVoice.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/speech/Goertzel.h"
#include "tests/speech/VoicePath.h"

namespace orvelle::speech {

namespace {

// A speaker and his listener at one pace.
class SpeakerVoiceTest : public testing::Test {
protected:
    // One packet and one block; whether something was heard.
    bool Say(std::uint64_t sequence, bool isLast = false) {
        const SentPacket& packet = tone[said++ % tone.size()];
        voice.Put({1, sequence, packet.Opus, isLast});
        return Take();
    }
    bool Take() {
        Block block = Silence;
        const bool talked = voice.Take(block);
        heard.insert(heard.end(), block.begin(), block.end());
        return talked;
    }
    long TakeToTheEnd() {
        long blocks = 0;
        while (Take()) ++blocks;
        return blocks;
    }
    double LastBlocks(std::size_t count) const {
        return ToneAmplitude(Blocks(heard, heard.size() / BlockSamples - count, count), 1000);
    }

    const std::vector<SentPacket> tone = Encode(Tone(1000, 0.3, 1000));
    SpeakerVoice voice;
    Sound heard;
    std::size_t said = 0;
};

TEST_F(SpeakerVoiceTest, ASilentSpeakerLeavesTheBlockAsItWas) {
    Block block;
    block.fill(0.25F);
    const Block before = block;
    EXPECT_FALSE(voice.Take(block));
    EXPECT_EQ(block, before);
    EXPECT_TRUE(voice.HasEnded());
}

TEST_F(SpeakerVoiceTest, TheLastPacketEndsTheTalkOnceItIsHeard) {
    for (std::uint64_t block = 0; block < 20; ++block) EXPECT_TRUE(Say(block));
    EXPECT_FALSE(voice.HasEnded());
    EXPECT_TRUE(Say(20, true));
    EXPECT_TRUE(voice.HasEnded());
    EXPECT_FALSE(Take());
    EXPECT_LT(std::abs(heard[21 * BlockSamples - 1]), 0.001) << "faded out";
}

TEST_F(SpeakerVoiceTest, ATalkWithoutAnEndEndsAfter120Milliseconds) {
    for (std::uint64_t block = 0; block < 20; ++block) Say(block);
    EXPECT_EQ(TakeToTheEnd(), 12);
    EXPECT_TRUE(voice.HasEnded());
}

TEST_F(SpeakerVoiceTest, AnEndWithoutSoundEndsTheTalk) {
    for (std::uint64_t block = 0; block < 20; ++block) Say(block);
    voice.Put({1, 20, {}, true});
    EXPECT_EQ(TakeToTheEnd(), 1);
    EXPECT_TRUE(voice.HasEnded());
}

TEST_F(SpeakerVoiceTest, ANewTalkSoundsAsTheFirstDid) {
    const std::vector<SentPacket> loud = Encode(Tone(300, 0.9, 300));
    for (std::size_t block = 0; block < loud.size(); ++block) {
        voice.Put(AsHeard(loud[block]));
        Take();
    }
    ASSERT_TRUE(voice.HasEnded());
    heard.clear();
    SpeakerVoice fresh;
    for (std::uint64_t block = 0; block < 10; ++block) {
        Say(100 + block);
        fresh.Put({1, block, tone[block].Opus, false});
        Block expected;
        ASSERT_TRUE(fresh.Take(expected));
        EXPECT_TRUE(std::equal(expected.begin(), expected.end(), Blocks(heard, block).begin())) << block;
    }
}

TEST_F(SpeakerVoiceTest, StragglersAfterTheEndBeginNoTalk) {
    for (std::uint64_t block = 0; block < 20; ++block) Say(block);
    Say(21, true);
    TakeToTheEnd();
    ASSERT_TRUE(voice.HasEnded());
    EXPECT_FALSE(Say(20));
    EXPECT_TRUE(voice.HasEnded());
    EXPECT_EQ(voice.Counted().Late, 1);
}

TEST_F(SpeakerVoiceTest, EveryNumberComesOnce) {
    for (std::uint64_t block = 0; block < 20; ++block) {
        voice.Put({1, block, tone[block].Opus, false});
        EXPECT_TRUE(Say(block));
    }
    EXPECT_EQ(voice.Counted().Late, 20);
    EXPECT_EQ(voice.Counted().Concealed, 0);
}

// Each leads the numbers elsewhere in the middle of a talk.
class NumbersTest : public SpeakerVoiceTest,
                    public testing::WithParamInterface<std::pair<std::uint64_t, std::uint64_t>> {};

TEST_P(NumbersTest, AreFollowedWithinAMoment) {
    const auto [first, second] = GetParam();
    for (std::uint64_t block = 0; block < 50; ++block) EXPECT_TRUE(Say(first + block));
    EXPECT_GT(LastBlocks(20), 0.2);
    for (std::uint64_t block = 0; block < 60; ++block) Say(second + block);
    for (std::size_t piece = 0; piece < 9; ++piece) {
        EXPECT_GT(ToneAmplitude(Blocks(heard, heard.size() / BlockSamples - 5 * (piece + 1), 5), 1000), 0.2) << piece;
    }
    EXPECT_LT(voice.Counted().Concealed, 20);
    // Nothing piled up either.
    EXPECT_TRUE(Say(second + 60, true));
    EXPECT_LE(TakeToTheEnd(), 4);
}

constexpr std::uint64_t Greatest = ~std::uint64_t{0};
INSTANTIATE_TEST_SUITE_P(Of, NumbersTest,
                         testing::Values(std::pair<std::uint64_t, std::uint64_t>{0, 53},    // a short gap
                                         std::pair<std::uint64_t, std::uint64_t>{0, 5000},  // a jump
                                         std::pair<std::uint64_t, std::uint64_t>{7, Greatest / 2 + 100},
                                         std::pair<std::uint64_t, std::uint64_t>{7, Greatest - 20},
                                         std::pair<std::uint64_t, std::uint64_t>{5000, 0},   // anew
                                         std::pair<std::uint64_t, std::uint64_t>{100, 127},  // anew, a little back
                                         std::pair<std::uint64_t, std::uint64_t>{Greatest - 80,
                                                                                 Greatest - 30},  // wraps
                                         std::pair<std::uint64_t, std::uint64_t>{Greatest - 48, 1}));

TEST_F(SpeakerVoiceTest, AfterAPauseAnyNumberBeginsATalk) {
    for (std::uint64_t block = 0; block < 20; ++block) Say(100 + block, block == 19);
    for (int block = 0; block < 30; ++block) EXPECT_FALSE(Take());
    EXPECT_TRUE(Say(110));
    EXPECT_TRUE(Say(111));
}

TEST_F(SpeakerVoiceTest, WhatIsNotTakenPilesUpToHalfASecondAndShrinks) {
    for (std::uint64_t block = 0; block < 1000; ++block) voice.Put({1, block, tone[block % 100].Opus, false});
    for (std::uint64_t block = 1000; block < 1900; ++block) Say(block);
    Say(1900, true);
    EXPECT_LE(TakeToTheEnd(), 1);
    EXPECT_GE(voice.Counted().LeftOut, 48);
}

class LongPacketsTest : public testing::TestWithParam<Long> {};

TEST_P(LongPacketsTest, AreHeardWholeAndRestored) {
    const std::vector<SentPacket> packets = EncodeLong(Vowels(30000), GetParam());
    Listener perfect;
    perfect.Hear(packets, AtOnce());
    EXPECT_EQ(perfect.Voice.Counted().Concealed, 0);
    EXPECT_EQ(std::count(perfect.Talked.begin(), perfect.Talked.end(), true), packets.size() * GetParam());

    long lost = 0;
    Listener listener;
    listener.Hear(packets, [&, dice = std::mt19937(7)](std::size_t packet) mutable -> std::optional<double> {
        if (packet < 3 || packet + 1 == packets.size() || dice() % 20 != 0) return 0.0;
        lost += GetParam();
        return std::nullopt;
    });
    std::cout << lost << " blocks lost, restored " << listener.Voice.Counted().Restored << ", concealed "
              << listener.Voice.Counted().Concealed << '\n';
    EXPECT_GE(listener.Voice.Counted().Restored, lost * 0.6);
}

INSTANTIATE_TEST_SUITE_P(OfBlocks, LongPacketsTest, testing::Values(2, 4, 6));

TEST_F(SpeakerVoiceTest, DataThatIsNoOpusCountsAsMissing) {
    const std::vector<std::uint8_t> none;
    const std::vector<std::uint8_t> partOfABlock = {0x80, 1, 2, 3};  // 2.5 ms
    const std::vector<std::uint8_t> brokenFrames = {0x0b, 0xbf, 1};  // 63 frames
    for (std::uint64_t block = 0; block < 60; ++block) {
        if (block % 10 == 5)
            voice.Put({1, block, block == 5 ? none : block == 15 ? partOfABlock : brokenFrames, false});
        else
            voice.Put({1, block, tone[block].Opus, false});
        EXPECT_TRUE(Take());
    }
    EXPECT_EQ(voice.Counted().Restored + voice.Counted().Concealed, 7);  // the first of them twice, as the delay grows
    EXPECT_GT(LastBlocks(50), 0.2);
}

TEST_F(SpeakerVoiceTest, GarbageDoesNoHarm) {
    std::mt19937 dice(1);
    Block block = Silence;
    for (int packet = 0; packet < 20000; ++packet) {
        std::vector<std::uint8_t> data(dice() % 80);
        for (std::uint8_t& byte : data) byte = static_cast<std::uint8_t>(dice());
        const std::uint64_t sequence = dice() % 50 == 0 ? dice() * std::uint64_t{dice()} : packet;
        voice.Put({1, sequence, data, dice() % 20 == 0});
        if (dice() % 8 == 0) continue;
        voice.Take(block);
        for (const float sample : block) ASSERT_LE(std::abs(sample), 2.0F);
    }
    for (std::uint64_t sequence = 0; sequence < 100; ++sequence) Say(sequence);
    EXPECT_GT(LastBlocks(50), 0.2) << "and a voice after it is heard";
}

}  // namespace

}  // namespace orvelle::speech
