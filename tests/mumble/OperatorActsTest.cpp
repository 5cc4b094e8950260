// What a server's operator does to a pilot who is in a room: each time one event and one sentence, and no way back by
// itself.
#include <gtest/gtest.h>

#include "tests/mumble/Operator.h"
#include "tests/mumble/PlayedPilot.h"
#include "tests/mumble/VoiceServerRig.h"

namespace orvelle::mumble {

namespace {

using Told = std::vector<std::string>;

constexpr const char* TakenOut = "The server's operator took us out of 122.8.";

class OperatorActsTest : public testing::Test {
protected:
    // Both in one room, and one of them talks.
    void Talk() {
        ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
        ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
        one.Rooms->Mute(0, false);
        one.Say("begun");
        ASSERT_TRUE(two.WaitToHear("0 begun"));
    }
    // He is told so once, and his microphone is asked for no more.
    void ExpectOut(const std::string& sentence) {
        ASSERT_TRUE(one.WaitFor("kicked 0"));
        EXPECT_EQ(one.Status(0), sentence);
        EXPECT_FALSE(one.Rooms->IsSpeechWanted());
        one.Say("after it");
        EXPECT_TRUE(two.WaitToHear("0 gone"));
        EXPECT_EQ(two.Heard, (Told{"0 begun", "0 gone"}));
    }
    // Whoever joins now finds that he has not come back by himself.
    void ExpectNoReturn() {
        PlayedPilot three(loop, "BAW1");
        ASSERT_EQ(three.JoinAndWait(0, server.Room("122.8")), "joined");
        EXPECT_EQ(one.Told, (Told{"joined 0", "kicked 0"}));
        EXPECT_EQ(server.TimesLogged("AAL12.1(-1)> Authenticated"), 1);
    }

    VoiceServerRig server;
    linux::PollEventLoop loop;
    Operator chief{loop, server};
    PlayedPilot one{loop, "AAL12"};
    PlayedPilot two{loop, "DLH3K"};
};

}  // namespace

TEST_F(OperatorActsTest, AKickInTheMiddleOfATalk) {
    Talk();
    chief.Kick("AAL12.1", "Quiet");
    ExpectOut("The server's operator put us out: Quiet");
    ExpectNoReturn();
}

TEST_F(OperatorActsTest, AKickOfWhoeverIsHeard) {
    Talk();
    chief.Kick("DLH3K.1", "");
    ASSERT_TRUE(two.WaitFor("kicked 0"));
    EXPECT_EQ(two.Status(0), "The server's operator put us out.");
    EXPECT_EQ(two.Heard, (Told{"0 begun", "0 gone"}));
    EXPECT_EQ(one.Told, Told{"joined 0"});
}

TEST_F(OperatorActsTest, ABan) {
    Talk();
    chief.Ban("AAL12.1", "Enough");
    ExpectOut("The server's operator put us out: Enough");
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "failed");
    EXPECT_EQ(one.Status(0), server.Address() + " closed the connection; it may be full, or we came too often.");
    EXPECT_EQ(one.Told, (Told{"joined 0", "kicked 0", "failed 0"}));
    EXPECT_EQ(server.TimesLogged("AAL12.1(-1)> Authenticated"), 1);
}

TEST_F(OperatorActsTest, AMoveToAnotherChannel) {
    Talk();
    PlayedPilot other(loop, "KLM5");
    ASSERT_EQ(other.JoinAndWait(0, server.Room("121.5")), "joined");
    chief.Move("AAL12.1", "121#2E5");
    ExpectOut(TakenOut);
    other.Rooms->Mute(0, false);
    other.Say("to 121.5");
    ExpectNoReturn();
    EXPECT_FALSE(one.HasHeard("0 to 121.5"));
    // Back by his own wish, also into that one.
    EXPECT_EQ(one.JoinAndWait(0, server.Room("121.5")), "joined");
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
}

TEST_F(OperatorActsTest, TheEndOfTheChannel) {
    Talk();
    chief.RemoveChannel("122#2E8");
    ASSERT_TRUE(two.WaitFor("kicked 0"));
    EXPECT_EQ(two.Status(0), TakenOut);
    EXPECT_EQ(two.Told, (Told{"joined 0", "kicked 0"}));
    ExpectOut(TakenOut);
    ExpectNoReturn();
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
}

TEST_F(OperatorActsTest, AVoiceThatIsTakenAndGivenBack) {
    Talk();
    chief.Set("AAL12.1", Operator::Voice::Taken);
    EXPECT_TRUE(one.Until([this] { return one.Status(0) == "In 122.8, but the server only lets us listen"; }));
    chief.Set("AAL12.1", Operator::Voice::Allowed);
    EXPECT_TRUE(one.Until([this] { return one.Status(0) == "In 122.8"; }));
    one.Say("again");
    EXPECT_TRUE(two.WaitToHear("0 again"));
    EXPECT_EQ(one.Told, Told{"joined 0"});
}

}  // namespace orvelle::mumble
