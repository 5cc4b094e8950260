#include <gtest/gtest.h>

#include "adapters/embedded/MediaPlayers.h"
#include "adapters/embedded/TeamSpeak.h"
#include "platform/RuntimeError.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::embedded {
namespace {

class TeamSpeakTest : public testing::Test {
protected:
    std::string AddressField() {
        TS_SERVER_INFO info{};
        EXPECT_EQ(teamSpeak.tsrGetServerInfo(info), 0);
        return {info.Address.begin(), info.Address.end()};
    }

    HandLoop loop;
    TeamSpeak teamSpeak{loop};
    TS_SERVER_INFO server{};
    TS_CHANNEL_INFO channel{};
    TS_PLAYER_INFO player{};
    Long count = 0;
};

TEST_F(TeamSpeakTest, EveryCallFailsUntilTheProgramRuns) {
    EXPECT_EQ(teamSpeak.tsrConnect("teamspeak://srv1"), -1);
    EXPECT_EQ(teamSpeak.LastUrl(), "teamspeak://srv1");
    EXPECT_EQ(teamSpeak.tsrDisconnect(), -1);
    EXPECT_EQ(teamSpeak.tsrGetServerInfo(server), -1);
    EXPECT_EQ(teamSpeak.tsrGetChannelInfoByName("ops", channel, player, count), -1);
    EXPECT_EQ(teamSpeak.tsrSwitchChannelID(1, ""), -1);
}

TEST_F(TeamSpeakTest, ConnectsToServerAndChannelOfTheUrl) {
    teamSpeak.SetProgram(ProgramState::Running);
    EXPECT_EQ(teamSpeak.tsrGetServerInfo(server), -1);
    EXPECT_EQ(teamSpeak.tsrConnect("teamspeak://srv1?nickname=ABC123?channel=ops"), 0);
    EXPECT_EQ(teamSpeak.Address(), "srv1:8767");
    EXPECT_EQ(teamSpeak.Channel(), "ops");
    EXPECT_EQ(AddressField(), "srv1:8767" + std::string(21, ' '));
    teamSpeak.SetPadding(AddressPadding::Zeros);
    EXPECT_EQ(AddressField(), "srv1:8767" + std::string(21, '\0'));
    EXPECT_EQ(teamSpeak.tsrConnect("teamspeak://a-server-with-a-very-long-name.example:9000"), 0);
    EXPECT_EQ(AddressField(), "a-server-with-a-very-long-name");
    EXPECT_EQ(teamSpeak.Channel(), "");
    EXPECT_EQ(teamSpeak.tsrDisconnect(), 0);
    EXPECT_EQ(teamSpeak.Address(), "");
}

TEST_F(TeamSpeakTest, SwitchesBetweenTheChannelsItKnows) {
    teamSpeak.SetProgram(ProgramState::Running);
    teamSpeak.SetChannels({{"ops", 7}});
    EXPECT_EQ(teamSpeak.tsrGetChannelInfoByName("ops", channel, player, count), -1);
    teamSpeak.tsrConnect("teamspeak://srv1");
    EXPECT_EQ(teamSpeak.tsrGetChannelInfoByName("other", channel, player, count), -1);
    EXPECT_EQ(teamSpeak.tsrGetChannelInfoByName("ops", channel, player, count), 0);
    EXPECT_EQ(channel.ChannelId, 7);
    EXPECT_EQ(teamSpeak.tsrSwitchChannelID(8, ""), -1);
    EXPECT_EQ(teamSpeak.tsrSwitchChannelID(7, ""), 0);
    EXPECT_EQ(teamSpeak.Channel(), "ops");
    teamSpeak.SetProgram(ProgramState::NotRunning);
    EXPECT_EQ(teamSpeak.Channel(), "");
    EXPECT_EQ(teamSpeak.Address(), "");
}

TEST_F(TeamSpeakTest, GivesTheResultsItIsTold) {
    teamSpeak.SetProgram(ProgramState::Running);
    teamSpeak.Fail() = {1, 2, 3, 4, 5};
    EXPECT_EQ(teamSpeak.tsrConnect("teamspeak://srv1"), 1);
    EXPECT_EQ(teamSpeak.tsrDisconnect(), 2);
    EXPECT_EQ(teamSpeak.tsrGetServerInfo(server), 3);
    EXPECT_EQ(teamSpeak.tsrGetChannelInfoByName("ops", channel, player, count), 4);
    EXPECT_EQ(teamSpeak.tsrSwitchChannelID(1, ""), 5);
}

TEST(MediaPlayersTest, APlayerPlaysUntilItIsStoppedOrItsRecordingEnds) {
    HandLoop loop;
    MediaPlayers players(loop);
    EXPECT_FALSE(players.Player(1).Exists);
    auto player = players.New(1);
    EXPECT_TRUE(players.Player(1).Exists);
    EXPECT_EQ(player->PlayState(), 0);
    player->AutoRewind(true);
    player->Open("http://atis/one");
    player->Mute(true);
    player->Volume(-500);
    EXPECT_NE(player->PlayState(), 0);
    EXPECT_TRUE(players.Player(1).AutoRewind);
    EXPECT_TRUE(players.Player(1).Muted);
    EXPECT_EQ(players.Player(1).Volume, -500);
    EXPECT_EQ(players.Player(1).Source, "http://atis/one");
    players.EndRecording(1);
    EXPECT_EQ(player->PlayState(), 0);
    player->Open("http://atis/one");
    player->Stop();
    EXPECT_EQ(player->PlayState(), 0);
    player.reset();
    EXPECT_FALSE(players.Player(1).Exists);
}

TEST(MediaPlayersTest, CreatingOneFailsOnDemand) {
    HandLoop loop;
    MediaPlayers players(loop);
    players.SetAvailable(false);
    try {
        players.New(0);
        FAIL() << "a player was made";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number, 429);
    }
}

}  // namespace
}  // namespace orvelle::embedded
