// What the whole panel tells voice programs and the voice engine, whatever the network tells it and the user does.
#include <QListWidget>
#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "tests/endtoend/PanelTest.h"

namespace orvelle {

namespace {

const std::string Join = "|/join1|srv1/ops|/priority|high|/netspeed|2|/callsign|ABC123|";
const std::string Leave = "|/leave|";

class VoiceTest : public PanelTest {
protected:
    VoiceTest() {
        store::SqliteStore& store = house.Settings.Store;
        for (const char* name : {"RWEnable", "TSEnable", "VVLEnable"}) store.SaveSettingLong("OrvelleCP", name, 1);
        store.SaveSettingString("OrvelleCP", "TSPath", '"' + VoiceProgram() + '"');
        store.SaveSettingString("OrvelleCP", "VVLFSKey", "F8");
        store.HandlerEnded();
    }

    embedded::NetworkLink& Network() { return house.Outside.Practice.NetworkLink; }
    embedded::TeamSpeak& TeamSpeak() { return house.Outside.Practice.TSRemote; }
    void Tune(const RadioVoiceSetting& record) { Network().SetVoice(0, record); }
    // Tunes, and waits for what comes of it.
    bool Tunes(const RadioVoiceSetting& record, Long software) {
        Tune(record);
        return Becomes(software);
    }
    bool Becomes(Long software) {
        return ComesTrue([&] { return panel.Variables().ActiveVoiceSoftware == software; });
    }
    std::vector<std::string> Commands() const {
        std::vector<std::string> lines;
        std::istringstream commands(VoiceCommands());
        for (std::string line; std::getline(commands, line);) lines.push_back(line);
        return lines;
    }
    int Refusals() {
        const auto& programs = dynamic_cast<QListWidget&>(OfDeck("Programs"));
        int count = 0;
        for (int row = 0; row < programs.count(); ++row) count += programs.item(row)->text().contains("was refused");
        return count;
    }
};

// The engine serves where no other record wins, so that it tells of a refusal.
TEST_F(VoiceTest, NoTextOfTheNetworkBecomesAnArgument) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    const RadioVoiceSetting plain{RogerWilco, "srv1", "ops", "", ""};
    ASSERT_TRUE(Tunes(plain, RogerWilco));

    const std::vector<std::string> hostile{"tower /exec /bin/sh",
                                           "tower -x",
                                           "-x",
                                           "/exec",
                                           "tower\"",
                                           "\"a b\"",
                                           "a\tb",
                                           "a\nb",
                                           "a\r\nb",
                                           " tower",
                                           "tower ",
                                           "a  /leave",
                                           "ops /callsign XYZ"};
    std::vector<RadioVoiceSetting> records;
    for (const std::string& text : hostile) {
        records.push_back({RogerWilco, "srv1", text, "", ""});
        records.push_back({RogerWilco, text, "ops", "", ""});
    }
    records.push_back({RogerWilco, "srv1 /", "ops", "", ""});
    for (const RadioVoiceSetting& record : records) {
        ASSERT_TRUE(Tunes(record, VatsimVoice)) << record.Server << "/" << record.Channel;
        ASSERT_TRUE(Tunes(plain, RogerWilco));
    }
    for (const std::string& text : hostile) {
        Network().SetCallsign(text);
        ASSERT_TRUE(Becomes(VatsimVoice)) << text;
        Network().SetCallsign("ABC123");
        ASSERT_TRUE(Becomes(RogerWilco));
    }

    const std::size_t refused = records.size() + hostile.size();
    EXPECT_TRUE(ComesTrue([&] { return Commands().size() == 2 * refused + 1; })) << Commands().size();
    for (const std::string& line : Commands()) EXPECT_TRUE(line == Join || line == Leave) << line;
    EXPECT_EQ(Refusals(), static_cast<int>(refused));
}

TEST_F(VoiceTest, OrdinaryNamesWithBlanksStayOneArgument) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    for (const char* channel : {"Innsbruck Tower", "EDDF - Tower", "Ground / Tower", "a  b", "O'Hare", "$HOME;`id`"}) {
        Network().SetCallsign(std::string("Speed Bird ") + channel[0]);
        Tune({RogerWilco, "voice.example:9000", channel, "", ""});
        const std::string expected = std::string("|/join1|voice.example:9000/") + channel +
                                     "|/priority|high|/netspeed|2|/callsign|Speed Bird " + channel[0] + "|";
        EXPECT_TRUE(ComesTrue([&] { return std::ranges::count(Commands(), expected) == 1; })) << expected << "\n"
                                                                                              << VoiceCommands();
    }
    EXPECT_EQ(Refusals(), 0);
}

TEST_F(VoiceTest, NoTextOfTheNetworkBecomesAPartOfAUrlOrAnotherScheme) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    TeamSpeak().SetProgram(ProgramState::Running);
    const std::vector<RadioVoiceSetting> records{
        {TeamSpeakUrl, "file:///etc/passwd", "ops", "", ""},
        {TeamSpeakUrl, "http://srv1", "", "", ""},
        {TeamSpeakUrl, "srv1", "", "", ""},
        {TeamSpeakUrl, "teamspeak://srv1?password=x", "", "", ""},
        {TeamSpeakUrl, "teamspeak://srv1", "ops?password=x", "", ""},
        {TeamSpeakHost, "srv1?nickname=other?channel=secret", "ops", "", ""},
        {TeamSpeakHost, "srv1", "ops&password=x", "", ""},
        {TeamSpeakHost, "srv1", "ops", "me?channel=secret", ""},
        {TeamSpeakHost, "srv1", "ops", "me", "x?channel=secret"},
        {TeamSpeakHost, "srv1", "ops%3fpassword=x", "", ""},
    };
    for (std::size_t told = 0; told < records.size(); ++told) {
        Tune(records[told]);
        ASSERT_TRUE(ComesTrue([&] { return Refusals() == static_cast<int>(told) + 1; })) << told;
    }
    Network().SetCallsign("ABC123?password=x");
    Tune({TeamSpeakHost, "srv1", "ops", "", ""});
    ASSERT_TRUE(ComesTrue([&] { return Refusals() == static_cast<int>(records.size()) + 1; }));
    EXPECT_EQ(panel.Variables().ActiveVoiceSoftware, VatsimVoice);
    EXPECT_EQ(TeamSpeak().LastUrl(), "");
    EXPECT_EQ(VoiceCommands(), "");

    Network().SetCallsign("ABC123");
    Tune({TeamSpeakUrl, "TeamSpeak://srv1", "Innsbruck Tower", "", ""});
    EXPECT_TRUE(ComesTrue([this] {
        return TeamSpeak().LastUrl() == "TeamSpeak://srv1?nickname=ABC123?channel=Innsbruck%20Tower";
    })) << TeamSpeak().LastUrl();
}

TEST_F(VoiceTest, ATalkWhoseKeyIsClearedEndsWithItsRelease) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    const embedded::VoiceEngine& engine = house.Outside.Practice.VVL;
    embedded::SimulatorLink& simulator = house.Outside.Practice.SimulatorLink;
    ASSERT_TRUE(ComesTrue([&] { return engine.IsRunning(); }));
    simulator.PressKey("F8");
    ASSERT_TRUE(ComesTrue([&] { return !engine.Room(0).Muted; }));
    panel.VVLKeyClear.UserClick();
    EXPECT_FALSE(engine.Room(0).Muted);
    simulator.ReleaseKey("F8");
    EXPECT_TRUE(ComesTrue([&] { return engine.Room(0).Muted && engine.Room(2).Muted; }));
    EXPECT_TRUE(panel.Variables().VVLTransmitting);
}

}  // namespace

}  // namespace orvelle
