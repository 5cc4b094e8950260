#include <gtest/gtest.h>

#include <vector>

#include "adapters/pulse/PulseLevel.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::pulse {
namespace {

constexpr Long Settled = 500;

class LevelTest : public testing::Test {
protected:
    LevelTest() { Hear(50); }

    static pa_cvolume VolumeOf(Long percent) {
        pa_cvolume volume{};
        pa_cvolume_set(&volume, 2, static_cast<pa_volume_t>(percent) * PA_VOLUME_NORM / 100);
        return volume;
    }
    void Hear(Long percent) { level.Hear(VolumeOf(percent)); }

    HandLoop loop;
    std::vector<Long> sent;  // in percent
    PulseLevel level{
        loop,
        [this](const pa_cvolume& volume) {
            sent.push_back(static_cast<Long>((pa_cvolume_max(&volume) * 100 + PA_VOLUME_NORM / 2) / PA_VOLUME_NORM));
        },
        [] {}};
};

TEST_F(LevelTest, OneMessageIsUnderWayAndTheNewestFollows) {
    for (const Long percent : {51, 52, 53, 54}) level.Set(percent);
    EXPECT_EQ(sent, (std::vector<Long>{51}));
    level.Receive();
    EXPECT_EQ(sent, (std::vector<Long>{51, 54}));
    level.Receive();
    EXPECT_EQ(sent, (std::vector<Long>{51, 54}));
    EXPECT_EQ(level.Percent(), 54);
}

TEST_F(LevelTest, OlderEchoesNeverMoveItBack) {
    level.Set(51);
    level.Set(60);
    level.Receive();
    Hear(51);
    EXPECT_EQ(level.Percent(), 60);
    level.Receive();
    Hear(51);
    EXPECT_EQ(level.Percent(), 60);
    Hear(60);
    loop.Run(Settled);
    EXPECT_EQ(level.Percent(), 60);
}

TEST_F(LevelTest, OthersLevelsWaitForTheHandAndThenCount) {
    level.Set(51);
    Hear(10);
    loop.Run(10 * Settled);  // the server is slow
    EXPECT_EQ(level.Percent(), 51);
    level.Receive();
    loop.Run(Settled - 1);
    EXPECT_EQ(level.Percent(), 51);
    level.Set(52);
    level.Receive();
    loop.Run(Settled - 1);
    EXPECT_EQ(level.Percent(), 52);
    loop.Run(1);
    EXPECT_EQ(level.Percent(), 10);
    Hear(20);
    EXPECT_EQ(level.Percent(), 20);
}

TEST_F(LevelTest, ALevelThatTheServerRefusesGoesBack) {
    level.Set(51);
    level.Receive();
    loop.Run(Settled);
    EXPECT_EQ(level.Percent(), 50);
}

TEST_F(LevelTest, WhatIsLouderThanFullIsFull) {
    Hear(150);
    EXPECT_EQ(level.Percent(), 100);
    level.Set(100);
    level.Set(1000);
    EXPECT_TRUE(sent.empty());
    level.Set(-1);
    EXPECT_EQ(level.Percent(), 0);
    EXPECT_EQ(sent, std::vector<Long>{0});
}

}  // namespace
}  // namespace orvelle::pulse
