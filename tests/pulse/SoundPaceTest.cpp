#include "adapters/pulse/SoundPace.h"

#include <gtest/gtest.h>

namespace orvelle::pulse {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr std::size_t Block = 480;
constexpr std::size_t AtOnce = 6 * Block;

class SoundPaceTest : public testing::Test {
protected:
    SoundPaceTest() { pace.Restart(); }

    SoundPace pace;
    SoundPace::Moment now{std::chrono::hours(1)};
};

TEST_F(SoundPaceTest, SoundPassesAsFastAsTimeGoes) {
    for (int block = 0; block < 100000; ++block, now += milliseconds(10)) ASSERT_EQ(pace.Allow(Block, now), Block);
}

TEST_F(SoundPaceTest, ClocksThatDifferLoseNothing) {
    for (int block = 0; block < 100000; ++block, now += microseconds(9990)) ASSERT_EQ(pace.Allow(Block, now), Block);
}

TEST_F(SoundPaceTest, OfWhatWaitedSixtyMillisecondsPass) {
    EXPECT_EQ(pace.Allow(Block, now), Block);
    now += seconds(10);
    EXPECT_EQ(pace.Allow(1000 * Block, now), AtOnce);
    EXPECT_EQ(pace.Allow(1000 * Block, now), 0U);
    // In many pieces likewise; what comes in time passes again.
    now += seconds(10);
    std::size_t passed = 0;
    for (int piece = 0; piece < 1000; ++piece) passed += pace.Allow(Block, now);
    EXPECT_EQ(passed, AtOnce);
    for (int block = 0; block < 100; ++block) EXPECT_EQ(pace.Allow(Block, now += milliseconds(10)), Block);
}

TEST_F(SoundPaceTest, WhatTheServerCarriesAtOncePasses) {
    pace.Restart(20 * Block);
    for (int piece = 0; piece < 100; ++piece, now += milliseconds(200))
        EXPECT_EQ(pace.Allow(20 * Block, now), 20 * Block);
    EXPECT_EQ(pace.Allow(30 * Block, now += seconds(10)), 20 * Block);
}

TEST_F(SoundPaceTest, AClockThatJumpsIsAsAHang) {
    EXPECT_EQ(pace.Allow(Block, now), Block);
    now += std::chrono::hours(1000);
    EXPECT_EQ(pace.Allow(1000 * Block, now), AtOnce);
}

}  // namespace
}  // namespace orvelle::pulse
