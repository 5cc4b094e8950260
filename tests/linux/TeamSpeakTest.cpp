#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "adapters/linux/DynamicTeamSpeak.h"
#include "adapters/linux/OwnFile.h"

namespace orvelle::linux {
namespace {

const std::string Library = std::string(LIBRARIES) + "/libTSRemote.so";
const std::string PartOfLibrary = std::string(LIBRARIES) + "/libTSRemotePart.so";

class TeamSpeak : public testing::Test {
protected:
    TeamSpeak() {
        std::filesystem::remove(record);
        setenv("TSREMOTE_RECORD", record.c_str(), 1);
    }
    ~TeamSpeak() override { std::filesystem::remove(record); }

    std::vector<std::string> Calls() const {
        std::vector<std::string> calls;
        std::ifstream file(record);
        for (std::string line; std::getline(file, line);) calls.push_back(line);
        return calls;
    }

    std::string record = testing::TempDir() + "tsremote-" + std::to_string(getpid());
    TS_SERVER_INFO server{};
    TS_CHANNEL_INFO channel{};
    TS_PLAYER_INFO player{};
    Long count = 0;
};

using Texts = std::vector<std::string>;

TEST_F(TeamSpeak, CallsReachTheLibraryAndResultsComeBackIn16Bits) {
    DynamicTeamSpeak teamSpeak({Library});
    EXPECT_EQ(teamSpeak.tsrConnect("teamspeak://srv1?nickname=ABC123"), 0);
    EXPECT_EQ(teamSpeak.tsrConnect("TeamSpeak://srv1"), -2);
    EXPECT_EQ(teamSpeak.tsrDisconnect(), 0);
    EXPECT_EQ(teamSpeak.tsrSwitchChannelID(-5, ""), -2);
    EXPECT_EQ(Calls(), (Texts{"tsrConnect teamspeak://srv1?nickname=ABC123", "tsrConnect TeamSpeak://srv1",
                              "tsrDisconnect", "tsrSwitchChannelID -5 []"}));
}

TEST_F(TeamSpeak, UrlsOfAnotherSchemeDoNotReachTheLibrary) {
    DynamicTeamSpeak teamSpeak({Library});
    for (const char* url : {"file:///etc/passwd?nickname=ABC123", "http://srv1", "srv1", "", "teamspeak",
                            "teamspeaks://a", " teamspeak://srv1", "javascript:teamspeak://srv1"})
        EXPECT_EQ(teamSpeak.tsrConnect(url), DynamicTeamSpeak::OtherScheme) << url;
    EXPECT_TRUE(Calls().empty());
}

TEST_F(TeamSpeak, RecordsAreFilledInPlace) {
    DynamicTeamSpeak teamSpeak({Library});
    EXPECT_EQ(teamSpeak.tsrGetServerInfo(server), 0);
    EXPECT_EQ(std::string(server.Address.data(), server.Address.size()), "127.0.0.1:8767" + std::string(16, ' '));
    EXPECT_EQ(server.Unused302[29], '\0');
    EXPECT_EQ(server.Unused362[0], '\0');

    EXPECT_EQ(teamSpeak.tsrGetChannelInfoByName("ops", channel, player, count), 0);
    EXPECT_EQ(channel.ChannelId, 4711);
    EXPECT_EQ(player.Unused0[1], 815);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(Calls(), (Texts{"tsrGetServerInfo", "tsrGetChannelInfoByName ops 0"}));
}

TEST_F(TeamSpeak, WithoutALibraryEveryCallFails) {
    DynamicTeamSpeak teamSpeak({"/nowhere/libTSRemote.so", "libTSRemoteThatIsNowhere.so"});
    EXPECT_NE(teamSpeak.tsrConnect("teamspeak://srv1"), 0);
    EXPECT_NE(teamSpeak.tsrDisconnect(), 0);
    EXPECT_NE(teamSpeak.tsrGetServerInfo(server), 0);
    EXPECT_NE(teamSpeak.tsrGetChannelInfoByName("ops", channel, player, count), 0);
    EXPECT_NE(teamSpeak.tsrSwitchChannelID(1, ""), 0);
    EXPECT_EQ(server.Address[0], '\0');
}

TEST_F(TeamSpeak, WithoutAFunctionItsCallsAloneFail) {
    DynamicTeamSpeak teamSpeak({PartOfLibrary});
    EXPECT_EQ(teamSpeak.tsrDisconnect(), 0);
    EXPECT_NE(teamSpeak.tsrConnect("teamspeak://srv1"), 0);
    EXPECT_NE(teamSpeak.tsrGetServerInfo(server), 0);
    EXPECT_NE(teamSpeak.tsrGetChannelInfoByName("ops", channel, player, count), 0);
    EXPECT_NE(teamSpeak.tsrSwitchChannelID(1, ""), 0);
}

TEST_F(TeamSpeak, WhatIsNoLibraryCountsAsNone) {
    const std::string text = testing::TempDir() + "no-library-" + std::to_string(getpid()) + ".so";
    std::ofstream(text) << "not a library";
    DynamicTeamSpeak teamSpeak({text, PartOfLibrary});
    EXPECT_EQ(teamSpeak.tsrDisconnect(), 0);
    EXPECT_NE(teamSpeak.tsrConnect("teamspeak://srv1"), 0);
    std::filesystem::remove(text);
}

TEST_F(TeamSpeak, ALibraryThatComesLaterIsFound) {
    const std::string later = testing::TempDir() + "later-" + std::to_string(getpid()) + ".so";
    DynamicTeamSpeak teamSpeak({later});
    EXPECT_NE(teamSpeak.tsrDisconnect(), 0);
    std::filesystem::copy_file(PartOfLibrary, later);
    EXPECT_EQ(teamSpeak.tsrDisconnect(), 0);
    std::filesystem::remove(later);
}

TEST_F(TeamSpeak, TheLibraryIsFoundInTheLibraryPath) {
    // The path is read when a program starts, so the call is made in this program started anew.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    setenv("LD_LIBRARY_PATH", LIBRARIES, 1);
    const auto disconnect = [this] {
        const Integer result = DynamicTeamSpeak().tsrDisconnect();
        std::filesystem::remove(record);
        _exit(result);
    };
    EXPECT_EXIT(disconnect(), testing::ExitedWithCode(0), "");
    unsetenv("LD_LIBRARY_PATH");
    EXPECT_EXIT(disconnect(), testing::ExitedWithCode(static_cast<unsigned char>(DynamicTeamSpeak::NotThere)), "");
}

TEST_F(TeamSpeak, TheLibraryBesideTheProgramGoesBeforeTheLibraryPath) {
    const std::string beside = BesideOwnFile("libTSRemote.so");
    std::filesystem::copy_file(PartOfLibrary, beside, std::filesystem::copy_options::overwrite_existing);
    DynamicTeamSpeak teamSpeak;
    EXPECT_NE(teamSpeak.tsrConnect("teamspeak://srv1"), 0);
    EXPECT_EQ(teamSpeak.tsrDisconnect(), 0);
    EXPECT_TRUE(Calls().empty());
    std::filesystem::remove(beside);
}

}  // namespace
}  // namespace orvelle::linux
