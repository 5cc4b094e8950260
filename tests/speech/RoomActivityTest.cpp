// Whether somebody talks in a room.
#include "adapters/speech/RoomActivity.h"

#include <gtest/gtest.h>

#include "tests/shared/HandLoop.h"

namespace orvelle::speech {

namespace {

class RoomActivityTest : public testing::Test {
protected:
    RoomActivityTest() {
        room.Started = [this] { told += "started "; };
        room.Stopped = [this] { told += "stopped "; };
    }
    void Hear(std::uint32_t speaker, std::uint64_t sequence, bool isLast = false) {
        room.Hear({speaker, sequence, {}, isLast});
    }

    HandLoop loop;
    RoomActivity room{loop};
    std::string told;
};

TEST_F(RoomActivityTest, IsFromTheFirstPacketToTheLast) {
    Hear(1, 0);
    EXPECT_EQ(told, "started ");
    EXPECT_TRUE(room.IsActive());
    loop.Run(100);
    Hear(1, 1);
    Hear(1, 2, true);
    EXPECT_EQ(told, "started stopped ");
    EXPECT_FALSE(room.IsActive());
    Hear(1, 3);
    EXPECT_EQ(told, "started stopped started ");
}

TEST_F(RoomActivityTest, EndsAfter120MillisecondsWithoutAPacket) {
    Hear(1, 0);
    for (std::uint64_t sequence = 1; sequence < 20; ++sequence) {
        loop.Run(119);
        Hear(1, sequence);
    }
    loop.Run(119);
    EXPECT_EQ(told, "started ");
    loop.Run(1);
    EXPECT_EQ(told, "started stopped ");
    loop.Run(1000);
    EXPECT_EQ(told, "started stopped ");
    EXPECT_TRUE(loop.Idle());
}

TEST_F(RoomActivityTest, IsAsLongAsOneOfTwoTalks) {
    Hear(1, 0);
    Hear(2, 70);
    Hear(1, 1, true);
    loop.Run(60);
    Hear(2, 71);
    loop.Run(119);
    EXPECT_EQ(told, "started ");
    loop.Run(1);
    EXPECT_EQ(told, "started stopped ");
}

TEST_F(RoomActivityTest, StragglersBeginNoTalk) {
    Hear(1, 5);
    Hear(1, 7, true);
    Hear(1, 6);
    Hear(1, 7, true);
    EXPECT_EQ(told, "started stopped ");
    Hear(2, 9, true);
    EXPECT_EQ(told, "started stopped ");
    loop.Run(120);
    Hear(1, 0);
    EXPECT_EQ(told, "started stopped started ") << "but a speaker who counts anew does";
}

TEST_F(RoomActivityTest, WhoIsForgottenTalksNoMore) {
    room.Forget(3);
    room.Forget();
    EXPECT_EQ(told, "");
    Hear(1, 0);
    Hear(2, 0);
    room.Forget(1);
    EXPECT_EQ(told, "started ");
    room.Forget(2);
    EXPECT_EQ(told, "started stopped ");
    Hear(1, 0);
    Hear(2, 0);
    room.Forget();
    EXPECT_EQ(told, "started stopped started stopped ");
    EXPECT_TRUE(loop.Idle());
}

TEST_F(RoomActivityTest, AnyNumberOfSpeakersIsOneRoom) {
    for (std::uint32_t speaker = 0; speaker < 100000; ++speaker) Hear(speaker, 0);
    EXPECT_EQ(told, "started ");
    loop.Run(120);
    EXPECT_EQ(told, "started stopped ");
}

TEST_F(RoomActivityTest, AHandlerMayForget) {
    room.Started = [this] { room.Forget(); };
    Hear(1, 0);
    EXPECT_EQ(told, "stopped ");
    EXPECT_FALSE(room.IsActive());
}

}  // namespace

}  // namespace orvelle::speech
