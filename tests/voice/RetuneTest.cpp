// The change of channel on a running TeamSpeak, every branch of it, through the real loader and a library of C
// functions.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "adapters/linux/DynamicTeamSpeak.h"
#include "panel/FrmOrvelle.h"
#include "replay/World.h"
#include "tests/voice/PlayedTSRemote.h"

namespace orvelle {

namespace {

using Calls = std::vector<std::string>;

const std::string Reconnect = "connect teamspeak://one?nickname=ABC123?channel=two";

PlayedTeamSpeak& Played() {
    void* const library = dlopen(PLAYED_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) throw std::runtime_error(dlerror());
    return *reinterpret_cast<PlayedTeamSpeak* (*)()>(dlsym(library, PlayedTeamSpeakFunction))();
}

class RetuneTest : public testing::Test {
protected:
    RetuneTest() {
        played = PlayedTeamSpeak();
        world.Store.Put("OrvelleCP", "TSEnable", Long{1});
        Give("Tessaly.OpenSession", true);
        Give("Tessaly.SessionStatus", Long{1});
        Give("Tessaly.SessionCallsign", "ABC123");
        Give("Tessaly.TransmitRadio", "1");
        Give("Tessaly.VoiceSoftware(0)", Long{2});
        Give("Tessaly.VoiceServer(0)", "one");
        Give("Tessaly.VoiceChannel(0)", "one");
        Give("Tessaly.ResolveServerAddress", "10.0.0.1:8767");
        played.Address = "10.0.0.1:8767" + std::string(17, ' ');
        panel.Show();
        world.Tessaly.SessionOpened();
        EXPECT_EQ(panel.Variables().TSChannel, "one");
        played.Calls.clear();
        Give("Tessaly.VoiceChannel(0)", "two");
    }

    void Give(const std::string& call, const replay::Value& value) { world.Given.Give(call, {{value}}); }

    // The calls of one change of the channel.
    Calls Retune() {
        world.Tessaly.SessionStatusChanged();
        world.Tessaly.RadioVoiceChanged(0);
        // The routing runs twice; a change that failed is tried again.
        const auto second = std::find(played.Calls.begin(), played.Calls.end(), Reconnect);
        return {played.Calls.begin(), second == played.Calls.end() ? second : second + 1};
    }

    PlayedTeamSpeak& played = Played();
    linux::DynamicTeamSpeak teamSpeak{{PLAYED_LIBRARY}};
    std::ostringstream output;
    replay::World world{output};
    FrmOrvelle panel{world.Outside(teamSpeak)};
};

TEST_F(RetuneTest, TheChannelIsSwitchedOnTheRunningConnection) {
    EXPECT_EQ(Retune(), (Calls{"server", "channel two 0", "switch 42 []"}));
    EXPECT_EQ(panel.Variables().TSChannel, "two");
}

TEST_F(RetuneTest, AnAnswerAfterTenWaitsIsUsedUnlessItCameAtTheEleventhCall) {
    played.ServerInfoFailures = 9;
    Calls expected(10, "server");
    expected.insert(expected.end(), {"channel two 0", "switch 42 []"});
    EXPECT_EQ(Retune(), expected);
}

TEST_F(RetuneTest, AnAnswerAtTheEleventhCallCountsAsNone) {
    played.ServerInfoFailures = 10;
    Calls expected(11, "server");
    expected.push_back(Reconnect);
    EXPECT_EQ(Retune(), expected);
}

TEST_F(RetuneTest, WithoutAnAnswerItConnects) {
    played.ServerInfoFailures = 1000;
    Calls expected(11, "server");
    expected.push_back(Reconnect);
    EXPECT_EQ(Retune(), expected);
    EXPECT_EQ(panel.Variables().TSChannel, "two");
}

TEST_F(RetuneTest, OnAnotherServerItConnects) {
    played.Address = "10.0.0.2:8767" + std::string(17, ' ');
    EXPECT_EQ(Retune(), (Calls{"server", Reconnect}));
}

TEST_F(RetuneTest, AnAddressPaddedWithZerosIsAnotherServer) {
    played.Address = "10.0.0.1:8767" + std::string(17, '\0');
    EXPECT_EQ(Retune(), (Calls{"server", Reconnect}));
}

TEST_F(RetuneTest, AnUnknownChannelConnects) {
    played.ChannelInfo = 1;
    EXPECT_EQ(Retune(), (Calls{"server", "channel two 0", Reconnect}));
}

TEST_F(RetuneTest, ARefusedSwitchConnects) {
    played.SwitchChannel = 1;
    EXPECT_EQ(Retune(), (Calls{"server", "channel two 0", "switch 42 []", Reconnect}));
}

TEST_F(RetuneTest, AFailedConnectKeepsTheOldTargetAndIsTriedAtTheNextRun) {
    played.ServerInfoFailures = 1000;
    played.Connect = 1;
    Retune();
    EXPECT_EQ(panel.Variables().TSChannel, "one");
    EXPECT_EQ(panel.Variables().ActiveVoiceSoftware, TeamSpeakHost);
    played.Calls.clear();
    played.Connect = 0;
    world.Tessaly.SessionStatusChanged();
    EXPECT_EQ(played.Calls.back(), Reconnect);
    EXPECT_EQ(panel.Variables().TSChannel, "two");
}

}  // namespace

}  // namespace orvelle
