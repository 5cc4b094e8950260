// Names that a server keeps for whoever has the certificate with which they were registered.
#include <gtest/gtest.h>

#include "tests/mumble/Operator.h"
#include "tests/mumble/PlayedPilot.h"
#include "tests/mumble/PlayedServer.h"
#include "tests/mumble/VoiceServerRig.h"

namespace orvelle::mumble {

namespace {

using Told = std::vector<std::string>;

// Each of his three connections by its own name and certificate.
class RegisteredNamesTest : public testing::Test {
protected:
    void SetUp() override {
        Operator chief(loop, server);
        for (Long room = 0; room < Rooms; ++room) {
            ASSERT_EQ(one.JoinAndWait(room, server.Room("122.8")), "joined");
            chief.Register("AAL12." + std::to_string(room + 1));
        }
    }

    VoiceServerRig server;
    linux::PollEventLoop loop;
    PlayedPilot one{loop, "AAL12"};
};

}  // namespace

TEST_F(RegisteredNamesTest, LetUsIntoAllRoomsByOurOwnCertificates) {
    one.Restart();
    one.Told.clear();
    for (Long room = 0; room < Rooms; ++room) ASSERT_EQ(one.JoinAndWait(room, server.Room("121.5")), "joined");
    PlayedPilot two(loop, "DLH3K");
    ASSERT_EQ(two.JoinAndWait(0, server.Room("121.5")), "joined");
    for (Long room = 0; room < Rooms; ++room) {
        const std::string word = "0 from " + std::to_string(room);
        one.Rooms->Mute(room, false);
        one.Say(word.substr(2));
        EXPECT_TRUE(two.WaitToHear(word));
        one.Rooms->Mute(room, true);
        one.Say("end");
    }
    // None throws out another one.
    EXPECT_EQ(one.Told, (Told{"joined 0", "joined 1", "joined 2"}));
    // The server knew each by its certificate.
    EXPECT_EQ(server.TimesLogged("(-1)> Authenticated"), 1 + Rooms);
    EXPECT_EQ(server.TimesLogged("> Authenticated"), 2 + 2 * Rooms);
}

TEST_F(RegisteredNamesTest, AreRefusedToOthersForGood) {
    PlayedPilot stranger(loop, "AAL12");
    for (Long room = 0; room < Rooms; ++room) {
        EXPECT_EQ(stranger.JoinAndWait(room, server.Room("122.8")), "failed");
        EXPECT_EQ(stranger.Status(room), server.Address() + " does not know this name with our certificate.");
    }
    // Whoever joins now finds that he did not try again, and that nobody was thrown out.
    PlayedPilot two(loop, "DLH3K");
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(stranger.Told, (Told{"failed 0", "failed 1", "failed 2"}));
    EXPECT_EQ(one.Told, (Told{"joined 0", "joined 1", "joined 2"}));
    // Under another name he is welcome.
    PlayedPilot renamed(loop, "AAL13");
    EXPECT_EQ(renamed.JoinAndWait(0, server.Room("122.8")), "joined");
}

}  // namespace orvelle::mumble
