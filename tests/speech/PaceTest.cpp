// The pace of a voice when its packets are lost, late or early, or its clock is another than the listener's.
#include <gtest/gtest.h>

#include <random>

#include "tests/speech/Goertzel.h"
#include "tests/speech/VoicePath.h"

namespace orvelle::speech {

namespace {

constexpr unsigned Seed = 4711;

// Loses this share of all packets, in no order; the first ones and the last one arrive.
Road Losing(double share, std::size_t packets, std::size_t& lost) {
    return [share, packets, &lost, dice = std::mt19937(Seed)](std::size_t packet) mutable -> std::optional<double> {
        if (packet < 5 || packet + 1 == packets || dice() % 10000 >= share * 10000) return 0.0;
        ++lost;
        return std::nullopt;
    };
}

class LossTest : public testing::TestWithParam<double> {};

TEST_P(LossTest, MostOfWhatIsLostIsRestored) {
    const std::vector<SentPacket> packets = Encode(Vowels(60000));
    std::size_t lost = 0;
    Listener listener;
    listener.Hear(packets, Losing(GetParam(), packets.size(), lost));
    const BlockCounts& counts = listener.Voice.Counted();
    std::cout << lost << " lost of " << packets.size() << ", restored " << counts.Restored << ", concealed "
              << counts.Concealed << ", left out " << counts.LeftOut << '\n';
    ASSERT_GT(lost, packets.size() * GetParam() * 0.8);
    EXPECT_GE(counts.Restored, lost * 0.6);
    EXPECT_LE(counts.Restored + counts.Concealed, lost * 1.2);
    // It ends when it should, so that nothing piled up.
    const auto blocks = std::count(listener.Talked.begin(), listener.Talked.end(), true);
    EXPECT_NEAR(blocks, packets.size(), 3);
}

TEST_P(LossTest, DelayIsBounded) {
    const std::vector<SentPacket> packets = Encode(Bursts(60000));
    std::size_t lost = 0;
    Listener listener;
    listener.Hear(packets, Losing(GetParam(), packets.size(), lost));
    std::vector<double> delays = listener.BurstDelays(230);
    delays.erase(std::remove_if(delays.begin(), delays.end(), [](double delay) { return delay < 0; }), delays.end());
    std::cout << "delay by packets and their order alone: median " << Median(delays) << " ms, longest "
              << *std::max_element(delays.begin(), delays.end()) << " ms\n";
    EXPECT_GE(delays.size(), 228);
    EXPECT_LT(Median(delays), 40);
    EXPECT_LT(*std::max_element(delays.begin(), delays.end()), 60);
}

INSTANTIATE_TEST_SUITE_P(Percent, LossTest, testing::Values(0.05, 0.10),
                         [](const auto& share) { return std::to_string(static_cast<int>(share.param * 100)); });

TEST(PaceTest, WithoutLossNothingIsMadeUpAndTheDelayIsLeast) {
    Listener listener;
    listener.Hear(Encode(Bursts(10000)), AtOnce());
    EXPECT_EQ(listener.Voice.Counted().Concealed, 0);
    EXPECT_EQ(listener.Voice.Counted().LeftOut, 0);
    const std::vector<double> delays = listener.BurstDelays(39);
    std::cout << "median " << Median(delays) << " ms\n";
    EXPECT_LT(*std::max_element(delays.begin(), delays.end()), 20);
    EXPECT_GT(*std::min_element(delays.begin(), delays.end()), 10);  // ten of which are the block itself
}

// So much of the burst is heard that began then, in pieces of 5 ms that are not quiet.
long PiecesHeard(const Listener& listener, double burst, double delay) {
    constexpr std::size_t Piece = BlockSamples / 2;
    const auto first = static_cast<std::size_t>((FirstBurst + BurstPeriod * burst + delay - 10.5) * 48);
    long pieces = 0;
    for (std::size_t piece = 0; piece < 24; ++piece) {
        pieces += ToneAmplitude(std::span(listener.Heard).subspan(first + piece * Piece, Piece), 1000) > 0.15 ? 1 : 0;
    }
    return pieces;
}

// Between none and so many milliseconds.
Road Jitter(Long most, std::uint32_t seed = Seed) {
    return [most, dice = std::mt19937(seed)](std::size_t) mutable { return dice() % (most * 100) / 100.0; };
}

// The same on a road on which nothing overtakes.
Road InOrder(const std::vector<SentPacket>& packets, Road road) {
    return [&packets, road = std::move(road), last = 0.0](std::size_t packet) mutable {
        last = std::max(last, packets[packet].SentAt + *road(packet));
        return last - packets[packet].SentAt;
    };
}

TEST(PaceTest, NothingOfABurstIsLostInSixtyMillisecondsOfJitter) {
    const std::vector<SentPacket> packets = Encode(Bursts(30000));
    Listener listener;
    listener.Hear(packets, InOrder(packets, Jitter(60)));
    const std::vector<double> delays = listener.BurstDelays(119);
    long least = 12;
    for (std::size_t burst = 0; burst < delays.size(); ++burst) {
        ASSERT_GE(delays[burst], 0) << burst;
        least = std::min(least, PiecesHeard(listener, burst, delays[burst]));
    }
    std::cout << "median " << Median(delays) << " ms, longest " << *std::max_element(delays.begin(), delays.end())
              << " ms, concealed " << listener.Voice.Counted().Concealed << ", left out "
              << listener.Voice.Counted().LeftOut << ", least heard of a burst " << least * 5 << " ms\n";
    EXPECT_LT(*std::max_element(delays.begin(), delays.end()), 90);
    EXPECT_EQ(listener.Voice.Counted().Late, 0);
    EXPECT_GE(least, 11);
}

TEST(PaceTest, NoBurstIsLostWherePacketsOvertake) {
    Listener listener;
    listener.Hear(Encode(Bursts(30000)), Jitter(60));
    const std::vector<double> delays = listener.BurstDelays(119);
    std::cout << "median " << Median(delays) << " ms, longest " << *std::max_element(delays.begin(), delays.end())
              << " ms, concealed " << listener.Voice.Counted().Concealed << ", restored "
              << listener.Voice.Counted().Restored << ", late " << listener.Voice.Counted().Late << '\n';
    EXPECT_EQ(std::count(delays.begin(), delays.end(), -1), 0);
    EXPECT_LT(*std::max_element(delays.begin(), delays.end()), 110);
    EXPECT_LT(listener.Voice.Counted().Late, 100);
}

TEST(PaceTest, WhatAStallHeldBackIsHeardAndTheDelayShrinksAgain) {
    const std::vector<SentPacket> packets = Encode(Bursts(20000));
    Listener listener;
    // All that is sent within 300 ms comes at their end.
    listener.Hear(packets, [&](std::size_t packet) {
        const double sent = packets[packet].SentAt;
        return sent > 2000 && sent < 2300 ? 2300 - sent : 0.0;
    });
    const std::vector<double> delays = listener.BurstDelays(79);
    EXPECT_EQ(std::count(delays.begin() + 9, delays.end(), -1), 0);
    EXPECT_GT(delays[14], 100) << "after the first second, when half of it is gone";
    EXPECT_LT(delays[48], 30) << "ten seconds later";
    EXPECT_LT(delays.back(), 21);
}

// No network holds back so much: this computer slept.
TEST(PaceTest, WhatCameWhileTheComputerStoodStillIsLeftOutAtOnce) {
    const std::vector<SentPacket> packets = Encode(Bursts(20000));
    Listener listener;
    listener.Hear(packets, [&](std::size_t packet) {
        const double sent = packets[packet].SentAt;
        return sent > 2000 && sent < 5000 ? 5000 - sent : 0.0;
    });
    const std::vector<double> delays = listener.BurstDelays(79);
    EXPECT_LT(delays[21], 30) << "half a second later";
    EXPECT_EQ(std::count(delays.begin() + 21, delays.end(), -1), 0);
    EXPECT_LT(delays.back(), 21);
}

TEST(PaceTest, AnOutputThatTakesSomeBlocksAtOnceHearsThemAll) {
    const std::vector<SentPacket> packets = Encode(Vowels(10000));
    SpeakerVoice voice;
    for (std::size_t packet = 0; packet < packets.size(); ++packet) {
        voice.Put(AsHeard(packets[packet]));
        Block block;
        for (int taken = 0; packet % 4 == 3 && taken < 4; ++taken) EXPECT_TRUE(voice.Take(block));
    }
    EXPECT_EQ(voice.Counted().Concealed, 0);
    EXPECT_EQ(voice.Counted().Late + voice.Counted().LeftOut, 0);
    EXPECT_TRUE(voice.HasEnded());

    // Its phase is the worst: it takes all four when the first of the next four has come.
    SpeakerVoice early;
    for (std::size_t packet = 0; packet < packets.size(); ++packet) {
        early.Put(AsHeard(packets[packet]));
        Block block;
        for (int taken = 0; packet % 4 == 0 && taken < 4; ++taken) EXPECT_TRUE(early.Take(block));
    }
    EXPECT_LE(early.Counted().Concealed, 3);
    EXPECT_EQ(early.Counted().Late + early.Counted().LeftOut, 0);
}

class ClockTest : public testing::TestWithParam<double> {};

TEST_P(ClockTest, DelayStaysForTwentyMinutes) {
    // One talk of that length: a second of it again and again, as encoding is what takes the time.
    constexpr std::size_t Packets = 20 * 60 * 100;
    const double senderClock = ClockFasterBy(GetParam());
    const std::vector<SentPacket> second = Encode(Bursts(1000));
    std::vector<SentPacket> packets;
    for (std::size_t index = 0; index < Packets; ++index) {
        packets.push_back({index, second[index % second.size()].Opus, index + 1 == Packets, senderClock * (index + 1)});
    }
    Listener listener;
    listener.Hear(packets, AtOnce());
    const std::vector<double> delays = listener.BurstDelays(Packets / 25, senderClock);
    const double atFirst = Median({delays.begin(), delays.begin() + 40});
    const double atLast = Median({delays.end() - 40, delays.end()});
    const double longest = *std::max_element(delays.begin(), delays.end());
    std::cout << "at first " << atFirst << " ms, at last " << atLast << " ms, longest " << longest << " ms, left out "
              << listener.Voice.Counted().LeftOut << ", concealed " << listener.Voice.Counted().Concealed << '\n';
    EXPECT_EQ(std::count(delays.begin(), delays.end(), -1), 0);
    EXPECT_NEAR(atLast, atFirst, 10);
    EXPECT_LT(longest, atFirst + 21);
}

INSTANTIATE_TEST_SUITE_P(PartsPerMillion, ClockTest, testing::Values(200e-6, -200e-6),
                         [](const auto& parts) { return parts.param > 0 ? "SenderFaster" : "SenderSlower"; });

}  // namespace

}  // namespace orvelle::speech
