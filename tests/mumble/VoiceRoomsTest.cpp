// The voice rooms at a real server: who is in which room, and who hears whom.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <iostream>
#include <set>

#include "adapters/shared/PrivateFile.h"
#include "tests/mumble/PlayedPilot.h"
#include "tests/mumble/VoiceRelay.h"
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
    std::cout << "joined after " << Measure([this] { EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined"); })
              << " ms\n";
    EXPECT_EQ(one.Statuses, (Told{"0 Joining 122.8 at " + server.Address(), "0 In 122.8"}));
    EXPECT_EQ(server.TimesLogged("AAL12(99).1(-1)> Authenticated"), 1) << server.Log();
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

TEST_F(VoiceRoomsTest, OfOnePilotAreApartAndOwnVoicesIgnored) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    ASSERT_EQ(one.JoinAndWait(1, server.Room("122.8")), "joined");
    ASSERT_EQ(one.JoinAndWait(2, server.Room("talk")), "joined");
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    ASSERT_EQ(two.JoinAndWait(2, server.Room("talk")), "joined");
    one.Rooms->Mute(0, false);
    one.Say("to the first");
    one.Rooms->Mute(0, true);
    one.Say("end");
    one.Rooms->Mute(2, false);
    one.Say("to the third");
    two.Rooms->Mute(0, false);
    two.Say("answer");
    EXPECT_TRUE(two.WaitToHear("2 to the third"));
    EXPECT_EQ(two.Heard, (Told{"0 to the first", "0 end.", "2 to the third"}));
    EXPECT_TRUE(one.WaitToHear("0 answer"));
    EXPECT_TRUE(one.WaitToHear("1 answer"));
    EXPECT_EQ(one.Heard.size(), 2U);
}

TEST_F(VoiceRoomsTest, SendOneBackToHimselfInTheEcho) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("echo")), "joined");
    ASSERT_EQ(two.JoinAndWait(0, server.Room("echo")), "joined");
    EXPECT_EQ(one.Status(0), "In echo, where you hear yourself");
    one.Rooms->Mute(0, false);
    two.Rooms->Mute(0, false);
    one.Say("one");
    EXPECT_TRUE(one.WaitToHear("0 one"));
    two.Say("two");
    EXPECT_TRUE(two.WaitToHear("0 two"));
    EXPECT_EQ(one.Heard, Told{"0 one"});
    EXPECT_EQ(two.Heard, Told{"0 two"});
    // In another channel it is others who hear him, as ever.
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    one.Say("all");
    EXPECT_TRUE(two.WaitToHear("0 all"));
    EXPECT_FALSE(one.HasHeard("0 all"));
}

TEST_F(VoiceRoomsTest, SayNothingThatTheSquelchHoldsBack) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    one.Rooms->Mute(0, false);
    one.Say("hiss", VoiceRooms::Squelched::Yes);
    one.Say("word");
    one.Say("end", VoiceRooms::Squelched::Yes);
    one.Say("hiss", VoiceRooms::Squelched::Yes);
    one.Say("next");
    EXPECT_TRUE(two.WaitToHear("0 next"));
    EXPECT_EQ(two.Heard, (Told{"0 word", "0 end.", "0 next"}));
}

TEST_F(VoiceRoomsTest, KeepTheConnectionThroughAChangeOfChannel) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    std::cout << "retuned after " << Measure([this] { EXPECT_EQ(one.JoinAndWait(0, server.Room("121.5")), "joined"); })
              << " ms\n";
    one.Leave(0);
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(one.Told, (Told{"joined 0", "left 0", "joined 0", "left 0", "joined 0", "joined 0"}));
    EXPECT_EQ(server.TimesLogged("Authenticated"), 1);
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    two.Rooms->Mute(0, false);
    two.Say("a");
    EXPECT_TRUE(one.WaitToHear("0 a"));
}

// The wish to be there again overtakes the way out.
TEST_F(VoiceRoomsTest, ComeBackAfterALeaveThatIsUnderWay) {
    VoiceRelay relay(loop, server.Port());
    ASSERT_EQ(one.JoinAndWait(0, relay.Room("122.8")), "joined");
    server.Freeze();
    const unsigned long before = relay.Tunnelled;
    one.Leave(0);
    ASSERT_TRUE(one.Until([&] { return relay.Tunnelled > before; }));
    one.Join(0, relay.Room("122.8"));
    server.Thaw();
    ASSERT_TRUE(one.WaitFor("joined 0", 2));
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    two.Rooms->Mute(0, false);
    two.Say("a");
    EXPECT_TRUE(one.WaitToHear("0 a"));
    EXPECT_EQ(one.Told, (Told{"joined 0", "left 0", "joined 0"}));
    EXPECT_EQ(server.TimesLogged("AAL12(99).1(-1)> Authenticated"), 1);
}

// A server drops wishes that come too fast, and says nothing.
TEST_F(VoiceRoomsTest, EndInTheLastChannelThatWasWished) {
    VoiceServerRig strict({.ChangesAtOnce = 5});
    ASSERT_EQ(one.JoinAndWait(0, strict.Room("first")), "joined");
    for (int number = 0; number < 12; ++number) {
        const std::string channel = number % 2 == 0 ? "even" : "odd";
        one.Join(0, strict.Room(channel));
        ASSERT_TRUE(one.Until([&] { return one.Status(0) == "In " + channel || number % 3 == 0; }));
    }
    EXPECT_EQ(one.JoinAndWait(0, strict.Room("last")), "joined");
    EXPECT_FALSE(one.HasTold("failed 0"));
    ASSERT_EQ(two.JoinAndWait(0, strict.Room("last")), "joined");
    one.Rooms->Mute(0, false);
    one.Say("here");
    EXPECT_TRUE(two.WaitToHear("0 here"));
}

TEST_F(VoiceRoomsTest, EndInOneChannelWhereTwoMakeIt) {
    for (int round = 0; round < 5; ++round) {
        const std::string room = server.Room("new" + std::to_string(round));
        one.Join(0, room);
        two.Join(0, room);
        EXPECT_TRUE(one.WaitFor("joined 0", round + 1));
        EXPECT_TRUE(two.WaitFor("joined 0", round + 1));
        EXPECT_FALSE(one.HasTold("failed 0") || two.HasTold("failed 0"));
        one.Rooms->Mute(0, false);
        one.Say(room);
        EXPECT_TRUE(two.WaitToHear("0 " + room));
    }
}

TEST_F(VoiceRoomsTest, TakeOddNamesAndChannels) {
    const std::string umlauts =
        "\xC3\x9C"
        "berlandflug <b>1</b> / \"q\"";
    PlayedPilot odd(loop,
                    "\xC3\x84"
                    " /.,;'\"\n\t<i>" +
                        std::string(1000, 'x'));
    EXPECT_EQ(odd.JoinAndWait(0, server.Room(umlauts)), "joined");
    EXPECT_EQ(odd.Status(0), "In " + umlauts);
    std::string why;
    EXPECT_FALSE(ReadRoomAddress(server.Room(std::string(1000, 'c')), why));
    EXPECT_NE(why, "");
    const std::string longest(200, 'c');
    odd.JoinAndWait(1, server.Room(longest));
    EXPECT_EQ(odd.Told.size(), 2U) << odd.Status(1);
    EXPECT_EQ(odd.Status(1), "In " + longest);
}

TEST_F(VoiceRoomsTest, HaveCertificatesOfTheirOwnThatNobodyElseReads) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    ASSERT_EQ(one.JoinAndWait(1, server.Room("122.8")), "joined");
    std::set<std::string> texts;
    for (const char* name : {"room-1.pem", "room-2.pem", "known-servers"}) {
        const std::filesystem::path file = one.Folder.Path / name;
        EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600)) << file;
        texts.insert(ReadPrivateFile(file, 10000).Text.value_or(""));
    }
    EXPECT_EQ(texts.size(), 3U);
    EXPECT_FALSE(exists(one.Folder.Path / "room-3.pem"));
    one.Restart();
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_TRUE(texts.contains(ReadPrivateFile(one.Folder.Path / "room-1.pem", 10000).Text.value_or("")));
}

}  // namespace orvelle::mumble
