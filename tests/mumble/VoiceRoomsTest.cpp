// The voice rooms at a real server: who is in which room, and who hears whom.
#include <gtest/gtest.h>

#include <chrono>
#include <iostream>

#include "tests/mumble/PlayedPilot.h"
#include "tests/mumble/VoiceServerRig.h"

namespace orvelle::mumble {

namespace {

using Told = std::vector<std::string>;

class VoiceRoomsTest : public testing::Test {
protected:
    // Milliseconds that it takes until it is so.
    long Measure(const std::function<void()>& work) {
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start).count();
    }

    VoiceServerRig server;
    linux::PollEventLoop loop;
    PlayedPilot one{loop, "AAL12 (99)"};
    PlayedPilot two{loop, "DLH3K"};
};

}  // namespace

TEST_F(VoiceRoomsTest, AreJoinedAndLeft) {
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(one.Statuses, (Told{"0 Joining 122.8 at " + server.Address(), "0 In 122.8"}));
    EXPECT_TRUE(server.HasLogged("AAL12(99).1"));
    one.Leave(0);
    EXPECT_EQ(one.Told, (Told{"joined 0", "left 0"}));
    EXPECT_EQ(one.Status(0), "");
    one.Leave(0);
    EXPECT_EQ(one.Told.size(), 2U);
}

TEST_F(VoiceRoomsTest, CarryPacketsAsTheyAre) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    ASSERT_EQ(two.JoinAndWait(1, server.Room("122.8")), "joined");
    EXPECT_FALSE(one.Rooms->IsSpeechWanted());
    one.Say("muted");
    one.Rooms->Mute(0, false);
    EXPECT_TRUE(one.Rooms->IsSpeechWanted());
    one.Say("a");
    one.Say("b");
    one.Rooms->Mute(0, true);
    EXPECT_TRUE(one.Rooms->IsSpeechWanted());
    one.Say("c");
    EXPECT_FALSE(one.Rooms->IsSpeechWanted());
    one.Say("muted again");
    ASSERT_TRUE(two.WaitToHear("1 c."));
    EXPECT_EQ(two.Heard, (Told{"1 a", "1 b", "1 c."}));
    one.Leave(0);
    EXPECT_TRUE(two.WaitToHear("1 gone"));
}

}  // namespace orvelle::mumble
