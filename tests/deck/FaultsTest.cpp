// Delays, failures and oddities on demand.
#include <QCheckBox>
#include <QLineEdit>
#include <QSpinBox>

#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

class DeckFaults : public DeckRig {
protected:
    void TypeNumber(const char* name, int number) {
        auto& box = At<QSpinBox>(name);
        TurnTo(box);
        box.setFocus();
        box.selectAll();
        TypeText(&box, QString::number(number));
        ClickKey(&box, Qt::Key_Return);
        Settle();
    }
};

TEST_F(DeckFaults, EachSideIsDelayed) {
    TypeNumber("SimulatorDelay", 100);
    TypeNumber("NetworkDelay", 200);
    TypeNumber("StartDelay", 300);
    TypeNumber("JoinDelay", 400);
    TypeNumber("HeadsetMixerDelay", 500);
    TypeNumber("SpeakersMixerDelay", 600);
    EXPECT_EQ(setUp.SimulatorLink.Delay(), 100);
    EXPECT_EQ(setUp.NetworkLink.Delay(), 200);
    EXPECT_EQ(setUp.VVL.StartDelay(), 300);
    EXPECT_EQ(setUp.VVL.JoinDelay(), 400);
    EXPECT_EQ(setUp.VolumeControl.Delay(), 500);
    EXPECT_EQ(setUp.VolumeControlHP.Delay(), 600);
}

TEST_F(DeckFaults, TheNetworkRefuses) {
    ConnectAll();
    Click("RefuseSession");
    EXPECT_FALSE(tessaly.OpenSession(0));
    Click("RefuseSession");
    EXPECT_TRUE(tessaly.OpenSession(0));
    tessaly.CloseSession();

    Click("RefuseCreate");
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "VVL"), 0);
    Click("RefuseCreate");
    const Long id = tessaly.CreateInterface("VOICE", "VVL");
    EXPECT_NE(id, 0);
    tessaly.CloseInterface();

    Click("RefuseOpen");
    EXPECT_FALSE(tessaly.OpenInterface(id));
}

TEST_F(DeckFaults, AnotherComputerMakesAnOddRecord) {
    ConnectAll();
    Type("OddType", "WEATHER");
    Type("OddRole", "Station");
    Click("OddClaim");
    EXPECT_EQ(TakeEvents(), Events({"record appeared 1"}));
    EXPECT_EQ(setUp.NetworkLink.Records().at(1).Type, "WEATHER");
    EXPECT_EQ(setUp.NetworkLink.Records().at(1).Role, "Station");
}

TEST_F(DeckFaults, TheUserIsToldANotice) {
    Type("Notice", "The settings file cannot be written.");
    Click("TellNotice");
    EXPECT_EQ(TakeEvents(), Events({"notice The settings file cannot be written."}));
}

TEST_F(DeckFaults, TheSimulatorsComputerHasOtherNames) {
    Type("ComputerAddress", "10.0.0.7");
    Type("ComputerName", "SIMPC");
    Type("DesktopName", "Left seat");
    ConnectAll();
    EXPECT_EQ(velmarc.IPAddress(), "10.0.0.7");
    EXPECT_EQ(velmarc.ComputerName(), "SIMPC");
    EXPECT_EQ(velmarc.DesktopName(), "Left seat");
}

TEST_F(DeckFaults, TeamSpeakRunsAndFailsOnDemand) {
    auto& program = setUp.TSRemote;
    EXPECT_NE(program.tsrConnect("teamspeak://ts.example.net?channel=Lobby"), 0);
    Click("TeamSpeakRuns");
    EXPECT_EQ(program.tsrConnect("teamspeak://ts.example.net?channel=Lobby"), 0);
    Settle();
    EXPECT_EQ(TextOf("TeamSpeakPlace"), "On ts.example.net:8767, channel Lobby");
    EXPECT_EQ(TextOf("TeamSpeakUrl"), "teamspeak://ts.example.net?channel=Lobby");

    Type("TeamSpeakChannels", "Lobby, Tower");
    TS_CHANNEL_INFO channel{};
    TS_PLAYER_INFO player{};
    Long count = 0;
    EXPECT_EQ(program.tsrGetChannelInfoByName("Tower", channel, player, count), 0);
    EXPECT_EQ(channel.ChannelId, 2);

    TypeNumber("SwitchChannelResult", -7);
    EXPECT_EQ(program.tsrSwitchChannelID(2, ""), -7);
    TypeNumber("SwitchChannelResult", 0);
    EXPECT_EQ(program.tsrSwitchChannelID(2, ""), 0);
    TypeNumber("ChannelInfoResult", 3);
    EXPECT_EQ(program.tsrGetChannelInfoByName("Tower", channel, player, count), 3);
    TypeNumber("ServerInfoResult", 4);
    TS_SERVER_INFO server{};
    EXPECT_EQ(program.tsrGetServerInfo(server), 4);
    TypeNumber("DisconnectResult", 5);
    EXPECT_EQ(program.tsrDisconnect(), 5);
    TypeNumber("ConnectResult", 6);
    EXPECT_EQ(program.tsrConnect("teamspeak://ts.example.net"), 6);

    Click("TeamSpeakRuns");
    EXPECT_EQ(TextOf("TeamSpeakPlace"), "Not connected");
}

TEST_F(DeckFaults, TheAddressFieldIsPaddedAsPicked) {
    Click("TeamSpeakRuns");
    setUp.TSRemote.tsrConnect("teamspeak://ts");
    TS_SERVER_INFO server{};
    setUp.TSRemote.tsrGetServerInfo(server);
    EXPECT_EQ(server.Address.back(), ' ');
    Pick("TeamSpeakPadding", 1);
    setUp.TSRemote.tsrGetServerInfo(server);
    EXPECT_EQ(server.Address.back(), '\0');
}

TEST_F(DeckFaults, MixerLinesGoAndMove) {
    auto& mixer = setUp.VolumeControl;
    mixer.Open();
    Settle();
    TakeEvents();
    TypeNumber("HeadsetMasterLevel", 80);
    EXPECT_EQ(mixer.MasterVolume(), 80);
    EXPECT_EQ(TakeEvents(), Events({"master moved"}));

    Click("HeadsetMasterLine");
    EXPECT_TRUE(mixer.MasterUnavailable());
    EXPECT_FALSE(At<QWidget>("HeadsetMasterLevel").isEnabled());
    EXPECT_EQ(TakeEvents(), Events({"output closed", "output opened"}));
    Click("HeadsetMasterLine");
    EXPECT_FALSE(mixer.MasterUnavailable());
    EXPECT_EQ(mixer.MasterVolume(), 80);

    Click("SpeakersWaveLine");
    EXPECT_TRUE(setUp.VolumeControlHP.WaveUnavailable());
    EXPECT_FALSE(mixer.WaveUnavailable());
}

TEST_F(DeckFaults, DevicesArePluggedAndUnplugged) {
    setUp.VolumeControl.Open();
    Settle();
    TakeEvents();
    Click("HeadsetInputPlugged");
    EXPECT_EQ(TakeEvents(), Events({"input closed"}));
    Click("HeadsetInputPlugged");
    EXPECT_EQ(TakeEvents(), Events({"input opened"}));
    Click("HeadsetOutputPlugged");
    EXPECT_EQ(TakeEvents(), Events({"output closed"}));
    EXPECT_EQ(TextOf("HeadsetMixerText"), "Open on <DEFAULT>");
}

TEST_F(DeckFaults, MixersInWhosePlaceRealOnesServeAreNotShown) {
    TurnTo(At<QWidget>("RealMixersServe"));
    EXPECT_FALSE(At<QWidget>("RealMixersServe").isVisible());
    EXPECT_TRUE(At<QWidget>("HeadsetMasterLevel").isVisible());
    setUp.VolumeControl.StandBack();
    setUp.VolumeControlHP.StandBack();
    Settle();
    EXPECT_TRUE(At<QWidget>("RealMixersServe").isVisible());
    for (const char* const name : {"HeadsetMixer", "HeadsetMasterLine", "HeadsetMasterLevel", "SpeakersInputPlugged"})
        EXPECT_FALSE(At<QWidget>(name).isVisible()) << name;
}

TEST_F(DeckFaults, LevelsFollowThePanel) {
    setUp.VolumeControl.MasterVolume(25);
    Settle();
    EXPECT_EQ(At<QSpinBox>("HeadsetMasterLevel").value(), 25);
}

}  // namespace
}  // namespace orvelle
