// Rooms that were joined and are lost: servers that end, hang and come back, and networks that let little pass.
#include <gtest/gtest.h>

#include <chrono>
#include <iostream>

#include "tests/mumble/PlayedPilot.h"
#include "tests/mumble/VoiceRelay.h"
#include "tests/mumble/VoiceServerRig.h"

namespace orvelle::mumble {

namespace {

using Told = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

class RoomLossesTest : public testing::Test {
protected:
    static long MillisecondsSince(Clock::time_point start) {
        return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
    }
    // Whether what one says in the room comes to the other; it is said until it does.
    bool Hears(PlayedPilot& listener, PlayedPilot& speaker, const std::string& word) {
        speaker.Rooms->Mute(0, false);
        const bool heard = listener.Until([&] {
            speaker.Say(word);
            return listener.HasHeard("0 " + word);
        });
        speaker.Rooms->Mute(0, true);
        speaker.Say("end");
        return heard;
    }

    VoiceServerRig server;
    linux::PollEventLoop loop;
    PlayedPilot one{loop, "AAL12"};
    PlayedPilot two{loop, "DLH3K"};
};

}  // namespace

TEST_F(RoomLossesTest, AServerThatEndsAndComesBack) {
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    for (Long room = 0; room < Rooms; ++room)
        ASSERT_EQ(one.JoinAndWait(room, server.Room("12" + std::to_string(room) + ".8")), "joined");
    one.Rooms->Mute(1, false);
    one.Say("begun");
    one.Rooms->Mute(1, true);
    server.Kill();
    ASSERT_TRUE(one.Until([this] { return one.Status(1) == "Reconnecting"; }));
    for (Long room = 0; room < Rooms; ++room) ASSERT_TRUE(one.WaitFor("left " + std::to_string(room)));
    server.Start();
    const Clock::time_point back = Clock::now();
    for (Long room = 0; room < Rooms; ++room) ASSERT_TRUE(one.WaitFor("joined " + std::to_string(room), 2));
    std::cout << "three rooms joined again " << MillisecondsSince(back) << " ms after the server is back\n";
    // The talk ended with the loss: the microphone is not asked for what would end it.
    EXPECT_FALSE(one.Rooms->IsSpeechWanted());
    ASSERT_TRUE(two.WaitFor("joined 0", 2));
    EXPECT_EQ(one.Told.size(), 9U);
    EXPECT_EQ(one.Status(1), "In 121.8");
    one.Join(0, server.Room("122.8"));
    ASSERT_TRUE(one.WaitFor("joined 0", 3));
    EXPECT_TRUE(Hears(two, one, "back"));
}

TEST_F(RoomLossesTest, AServerThatEndsAgainAndAgain) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    for (int round = 1; round <= 2; ++round) {
        server.Kill();
        ASSERT_TRUE(one.WaitFor("left 0", round));
        server.Start();
        const Clock::time_point back = Clock::now();
        ASSERT_TRUE(one.WaitFor("joined 0", round + 1));
        std::cout << "joined again " << MillisecondsSince(back) << " ms after the server is back\n";
        EXPECT_EQ(one.Status(0), "In 122.8");
    }
    EXPECT_FALSE(one.HasTold("failed 0"));
}

TEST_F(RoomLossesTest, AShortLossIsNoLeave) {
    VoiceRelay relay(loop, server.Port());
    ASSERT_EQ(one.JoinAndWait(0, relay.Room("122.8")), "joined");
    relay.Cut();
    ASSERT_TRUE(one.Until([this] { return one.Status(0) == "Reconnecting"; }));
    ASSERT_TRUE(one.Until([this] { return one.Status(0) == "In 122.8"; }));
    EXPECT_EQ(one.Told, (Told{"joined 0"}));
}

TEST_F(RoomLossesTest, AServerThatHangs) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    server.Freeze();
    const Clock::time_point frozen = Clock::now();
    ASSERT_TRUE(one.Until([this] { return one.Status(0) == "Reconnecting"; }));
    std::cout << "lost " << MillisecondsSince(frozen) << " ms after the server hangs\n";
    ASSERT_TRUE(one.WaitFor("left 0"));
    server.Thaw();
    const Clock::time_point thawed = Clock::now();
    ASSERT_TRUE(one.WaitFor("joined 0", 2));
    std::cout << "joined again " << MillisecondsSince(thawed) << " ms after it goes on\n";
    EXPECT_EQ(one.Told, (Told{"joined 0", "left 0", "joined 0"}));
}

TEST_F(RoomLossesTest, ALeaveEndsTheWayBack) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    server.Kill();
    ASSERT_TRUE(one.Until([this] { return one.Status(0) == "Reconnecting"; }));
    one.Leave(0);
    EXPECT_EQ(one.Told, (Told{"joined 0", "left 0"}));
    server.Start();
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(server.TimesLogged("AAL12.1(-1)> Authenticated"), 1);
    EXPECT_EQ(one.Told.size(), 2U);
}

TEST_F(RoomLossesTest, UdpThatIsBlockedAndOpenedAgain) {
    VoiceRelay relay(loop, server.Port());
    ASSERT_EQ(one.JoinAndWait(0, relay.Room("122.8")), "joined");
    ASSERT_EQ(two.JoinAndWait(0, relay.Room("122.8")), "joined");
    ASSERT_TRUE(Hears(two, one, "first"));
    ASSERT_TRUE(one.Until([&] { return relay.Passed >= 8; }));
    relay.IsBlocked = true;
    Clock::time_point since = Clock::now();
    // The second pilot listens only.
    ASSERT_TRUE(Hears(two, one, "blocked"));
    std::cout << "heard through the tunnel after " << MillisecondsSince(since) << " ms\n";
    const unsigned long passed = relay.Passed;
    EXPECT_TRUE(Hears(two, one, "still blocked"));
    EXPECT_EQ(relay.Passed, passed);

    relay.IsBlocked = false;
    since = Clock::now();
    ASSERT_TRUE(Hears(two, one, "open"));
    // By UDP where nothing but its packets passes while a word is said.
    bool isByUdp = false;
    for (int word = 0; !isByUdp && MillisecondsSince(since) < 60000; ++word) {
        const unsigned long tunnelled = relay.Tunnelled;
        const unsigned long packets = relay.Passed;
        ASSERT_TRUE(Hears(two, one, std::to_string(word)));
        isByUdp = relay.Passed >= packets + 2 && relay.Tunnelled == tunnelled;
    }
    EXPECT_TRUE(isByUdp);
    std::cout << "heard by UDP again after " << MillisecondsSince(since) << " ms\n";
}

TEST_F(RoomLossesTest, ANetworkThatLosesAndDelays) {
    VoiceRelay relay(loop, server.Port());
    ASSERT_EQ(one.JoinAndWait(0, relay.Room("122.8")), "joined");
    ASSERT_EQ(two.JoinAndWait(0, relay.Room("122.8")), "joined");
    ASSERT_TRUE(Hears(two, one, "by UDP"));
    ASSERT_TRUE(one.Until([&] { return relay.Passed >= 8; }));
    relay.LossPercent = 5;
    relay.MostDelay = 60;
    two.Heard.clear();
    one.Rooms->Mute(0, false);
    for (int number = 0; number < 200; ++number) {
        one.Say(std::to_string(number));
        bool isDue = false;
        const Ticket next = loop.After(10, [&isDue] { isDue = true; });
        ASSERT_TRUE(one.Until([&isDue] { return isDue; }));
    }
    EXPECT_TRUE(two.Until([this] { return two.Heard.size() >= 160; })) << two.Heard.size();
    EXPECT_LT(two.Heard.size(), 200U);
    EXPECT_EQ(one.Told, (Told{"joined 0"}));
}

TEST_F(RoomLossesTest, TheTunnelAloneWhereThatIsWished) {
    VoiceRelay relay(loop, server.Port());
    PlayedPilot careful(loop, "BAW1", VoiceRoad::TunnelOnly);
    ASSERT_EQ(careful.JoinAndWait(0, relay.Room("122.8")), "joined");
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_TRUE(Hears(two, careful, "there"));
    EXPECT_TRUE(Hears(careful, two, "back"));
    EXPECT_EQ(relay.Passed + relay.Lost, 0U);
}

}  // namespace orvelle::mumble
