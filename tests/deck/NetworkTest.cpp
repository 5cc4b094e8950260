// The network's side but its records: link, session and radios.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include "deck/FirstFlight.h"
#include "tests/deck/DeckRig.h"

namespace orvelle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DeckNetwork : public DeckRig {};

TEST_F(DeckNetwork, TheSwitchTakesTheLinkUpAndDown) {
    tessaly.LinkStart();
    Click("NetworkLink");
    EXPECT_THAT(TakeEvents(), ElementsAre("network connected"));
    EXPECT_EQ(TextOf("NetworkStateText"), "Connected, server AUTOMATIC");
    Click("NetworkLink");
    EXPECT_THAT(TakeEvents(), ElementsAre("network disconnected"));
}

TEST_F(DeckNetwork, AServerIsSeen) {
    tessaly.LinkStart();
    Type("NetworkServerSeen", "SERVERPC");
    EXPECT_THAT(TakeEvents(), ElementsAre("network found SERVERPC"));
    EXPECT_EQ(TextOf("NetworkServersSeen"), "SERVERPC");
}

TEST_F(DeckNetwork, TheSessionEndsAndOpensAgain) {
    ConnectAll();
    EXPECT_TRUE(At<QCheckBox>("SessionOpen").isChecked());
    Click("SessionOpen");
    EXPECT_THAT(TakeEvents(), ElementsAre("session closed"));
    Click("SessionOpen");
    EXPECT_THAT(TakeEvents(), ElementsAre("session opened"));
}

TEST_F(DeckNetwork, StatusAndCallsignAreTold) {
    ConnectAll();
    Click("SessionConnected");
    EXPECT_EQ(setUp.NetworkLink.Session().Status, 1);
    Type("Callsign", "ORV123");
    EXPECT_EQ(setUp.NetworkLink.Session().Callsign, "ORV123");
    Click("SessionConnected");
    EXPECT_EQ(setUp.NetworkLink.Session().Status, 0);
    EXPECT_THAT(TakeEvents(), ElementsAre("session status changed", "callsign changed", "session status changed"));
}

TEST_F(DeckNetwork, FrequencyAndSelectionsRaiseRadioChanged) {
    ConnectAll();
    Type("FrequencyCOM1", "122.800");
    Type("FrequencyCOM2", "121.500");
    Pick("Receive", 2);
    Pick("Transmit", 0);
    const SessionSetting& session = setUp.NetworkLink.Session();
    EXPECT_EQ(session.Frequency[0], "122.800");
    EXPECT_EQ(session.Frequency[1], "121.500");
    EXPECT_EQ(session.Receive, "B");
    EXPECT_EQ(session.Transmit, "1");
    for (const std::string& event : TakeEvents()) EXPECT_EQ(event, "radio changed");
}

TEST_F(DeckNetwork, EachSelectionHasItsText) {
    ConnectAll();
    const char* texts[] = {"1", "2", "B", ""};
    for (int index = 0; index < 4; ++index) {
        Pick("Receive", index);
        Pick("Transmit", index);
        EXPECT_EQ(setUp.NetworkLink.Session().Receive, texts[index]);
        EXPECT_EQ(setUp.NetworkLink.Session().Transmit, texts[index]);
    }
}

TEST_F(DeckNetwork, EachPartOfAVoiceRecordReachesItsRadioAlone) {
    ConnectAll();
    const RadioVoiceSetting other = setUp.NetworkLink.Session().Voice[0];
    Pick("SoftwareCOM2", 1);
    Type("ServerCOM2", "rw.example.net");
    Type("ChannelCOM2", "Tower");
    Type("LoginCOM2", "pilot");
    Type("PasswordCOM2", "secret");
    EXPECT_THAT(TakeEvents(), testing::AllOf(testing::SizeIs(5), testing::Each("radio voice changed 1")));
    EXPECT_EQ(setUp.NetworkLink.Session().Voice[1],
              (RadioVoiceSetting{1, "rw.example.net", "Tower", "pilot", "secret"}));
    EXPECT_EQ(setUp.NetworkLink.Session().Voice[0], other);
}

TEST_F(DeckNetwork, EachSoftwareHasItsCode) {
    ConnectAll();
    for (int code = 5; code >= 0; --code) {
        Pick("SoftwareCOM1", code);
        EXPECT_EQ(setUp.NetworkLink.Session().Voice[0].Software, code);
    }
}

TEST_F(DeckNetwork, AFieldIsAppliedWhenItIsLeft) {
    ConnectAll();
    auto& edit = At<QLineEdit>("ServerCOM1");
    QTest::mouseClick(&edit, Qt::LeftButton);
    QTest::keyClicks(&edit, "rw.example.net");
    EXPECT_EQ(setUp.NetworkLink.Session().Voice[0].Server, "");
    QTest::mouseClick(&At<QLineEdit>("ChannelCOM1"), Qt::LeftButton);
    Settle();
    EXPECT_EQ(setUp.NetworkLink.Session().Voice[0].Server, "rw.example.net");
    EXPECT_THAT(TakeEvents(), ElementsAre("radio voice changed 0"));
}

TEST_F(DeckNetwork, AFieldThatWasNotChangedTellsNothing) {
    ConnectAll();
    QTest::mouseClick(&At<QLineEdit>("ServerCOM1"), Qt::LeftButton);
    QTest::mouseClick(&At<QLineEdit>("ChannelCOM1"), Qt::LeftButton);
    Settle();
    EXPECT_THAT(TakeEvents(), IsEmpty());
}

TEST_F(DeckNetwork, AChangeElsewhereLeavesAloneWhatTheUserTypes) {
    ConnectAll();
    auto& edit = At<QLineEdit>("ServerCOM1");
    QTest::mouseClick(&edit, Qt::LeftButton);
    QTest::keyClicks(&edit, "rw.exa");
    setUp.NetworkLink.SetVoice(0, {2, "ts.example.net", "Lobby", "", ""});
    Settle();
    EXPECT_EQ(edit.text(), "rw.exa");
    EXPECT_EQ(At<QLineEdit>("ChannelCOM1").text(), "Lobby");
    EXPECT_EQ(At<QComboBox>("SoftwareCOM1").currentText(), "TeamSpeak");
}

TEST_F(DeckNetwork, AFirstFlightIsReadyToBeTuned) {
    PrepareFirstFlight(setUp.Sides());
    tessaly.LinkStart();
    Settle();
    EXPECT_THAT(TakeEvents(),
                testing::UnorderedElementsAre("simulator connected", "network connected", "session opened"));
    EXPECT_EQ(At<QLineEdit>("Callsign").text(), "ORV123");
    EXPECT_EQ(At<QLineEdit>("FrequencyCOM1").text(), "122.800");
    EXPECT_EQ(At<QComboBox>("SoftwareCOM1").currentText(), "None");
    EXPECT_EQ(At<QComboBox>("Receive").currentText(), "1");
    EXPECT_EQ(At<QComboBox>("Transmit").currentText(), "1");
    EXPECT_TRUE(At<QCheckBox>("SessionConnected").isChecked());
}

}  // namespace
}  // namespace orvelle
