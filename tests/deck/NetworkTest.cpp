// The network's side but its records: link, session and radios.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <utility>

#include "deck/FirstFlight.h"
#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

class DeckNetwork : public DeckRig {};

TEST_F(DeckNetwork, TheSwitchTakesTheLinkUpAndDown) {
    tessaly.LinkStart();
    Click("NetworkLink");
    EXPECT_EQ(TakeEvents(), Events({"network connected"}));
    EXPECT_EQ(TextOf("NetworkStateText"), "Connected, server AUTOMATIC");
    Click("NetworkLink");
    EXPECT_EQ(TakeEvents(), Events({"network disconnected"}));
}

TEST_F(DeckNetwork, AServerIsSeen) {
    tessaly.LinkStart();
    Type("NetworkServerSeen", "SERVERPC");
    EXPECT_EQ(TakeEvents(), Events({"network found SERVERPC"}));
    EXPECT_EQ(TextOf("NetworkServersSeen"), "SERVERPC");
}

TEST_F(DeckNetwork, TheSessionEndsAndOpensAgain) {
    ConnectAll();
    EXPECT_TRUE(At<QCheckBox>("SessionOpen").isChecked());
    Click("SessionOpen");
    EXPECT_EQ(TakeEvents(), Events({"session closed"}));
    Click("SessionOpen");
    EXPECT_EQ(TakeEvents(), Events({"session opened"}));
}

TEST_F(DeckNetwork, StatusAndCallsignAreTold) {
    ConnectAll();
    Click("SessionConnected");
    EXPECT_EQ(setUp.NetworkLink.Session().Status, 1);
    Type("Callsign", "ORV123");
    EXPECT_EQ(setUp.NetworkLink.Session().Callsign, "ORV123");
    Click("SessionConnected");
    EXPECT_EQ(setUp.NetworkLink.Session().Status, 0);
    EXPECT_EQ(TakeEvents(), Events({"session status changed", "callsign changed", "session status changed"}));
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

TEST_F(DeckNetwork, AFrequencyIsShownAsARadioShowsIt) {
    ConnectAll();
    const std::pair<const char*, const char*> typed[] = {{"122.8", "122.800"},
                                                         {"122,8", "122.800"},
                                                         {"118", "118.000"},
                                                         {" 136.99 ", "136.990"},
                                                         {"118.02", "118.025"},
                                                         {"118.005", "118.005"},
                                                         {"", ""}};
    for (const auto& [text, shown] : typed) {
        Type("FrequencyCOM1", text);
        EXPECT_EQ(setUp.NetworkLink.Session().Frequency[0], shown) << text;
        EXPECT_EQ(At<QLineEdit>("FrequencyCOM1").text(), shown) << text;
        EXPECT_FALSE(At<QLabel>("RadioRemark").isVisible()) << text;
    }
}

TEST_F(DeckNetwork, AFrequencyThatIsNoneIsRefusedWithARemark) {
    ConnectAll();
    Type("FrequencyCOM2", "121.500");
    TakeEvents();
    for (const char* text :
         {"abc", "99999999999999.5", "117.975", "136.995", "118.020", "118.001", "122.8000", "-122.8", "122.8 MHz"}) {
        Type("FrequencyCOM2", text);
        EXPECT_EQ(setUp.NetworkLink.Session().Frequency[1], "121.500") << text;
        EXPECT_EQ(At<QLineEdit>("FrequencyCOM2").text(), "121.500") << text;
        EXPECT_TRUE(At<QLabel>("RadioRemark").isVisible()) << text;
    }
    Type("FrequencyCOM2", "<b>tower</b> of Innsbruck and others");
    EXPECT_EQ(TextOf("RadioRemark"),
              "COM2 stays on 121.500: \"<b>tower</b> of Innsbruc…\" is none of its frequencies, 118.000 to 136.990 in "
              "steps of 25 or 8.33 kHz.");
    EXPECT_FALSE(At<QLineEdit>("FrequencyCOM2").actions().first()->toolTip().contains("<b>"));
    EXPECT_EQ(TakeEvents(), Events({}));
    Type("FrequencyCOM1", "122.8");
    EXPECT_FALSE(At<QLabel>("RadioRemark").isVisible());
    Type("FrequencyCOM1", "abc");
    Type("LoginCOM2", "pilot");
    EXPECT_FALSE(At<QLabel>("RadioRemark").isVisible()) << "the user went on to something else";
}

TEST_F(DeckNetwork, ARefusedFrequencyIsToldHoweverTheFieldWasLeft) {
    ConnectAll();
    Type("FrequencyCOM1", "122.8");
    auto& edit = At<QLineEdit>("FrequencyCOM1");
    const auto& remark = At<QLabel>("RadioRemark");
    for (const Qt::Key end : {Qt::Key_Return, Qt::Key_Tab}) {
        for (const char* text : {"abc", "999.999", "118.0125", "-5", "1e9"}) {
            ClickMouse(&edit, Qt::LeftButton);
            edit.selectAll();
            TypeText(&edit, text);
            ClickKey(&edit, end);
            Settle();
            EXPECT_EQ(edit.hasFocus(), end == Qt::Key_Return);
            EXPECT_EQ(edit.text(), "122.800") << text;
            EXPECT_TRUE(remark.isVisible()) << text;
            ASSERT_EQ(edit.actions().size(), 1) << text;
            EXPECT_EQ(edit.actions().first()->text(), remark.text());
            EXPECT_TRUE(At<QLineEdit>("FrequencyCOM2").actions().isEmpty());
        }
        // What changes elsewhere takes nothing away.
        setUp.NetworkLink.SetCallsign(end == Qt::Key_Tab ? "ORV2" : "ORV1");
        Settle();
        EXPECT_TRUE(remark.isVisible());
        Type("FrequencyCOM1", "122.8");
        EXPECT_FALSE(remark.isVisible());
        EXPECT_TRUE(edit.actions().isEmpty());
    }
}

TEST_F(DeckNetwork, WhatTheFarSideSaysIsShownWhateverItIs) {
    ConnectAll();
    setUp.NetworkLink.SetFrequency(0, "Unicom");
    Settle();
    EXPECT_EQ(At<QLineEdit>("FrequencyCOM1").text(), "Unicom");
}

TEST_F(DeckNetwork, ARadioThatLacksItsServerOrChannelIsTold) {
    ConnectAll();
    EXPECT_FALSE(At<QLabel>("RadioRemark").isVisible());
    Pick("SoftwareCOM1", 3);
    EXPECT_EQ(TextOf("RadioRemark"), "COM1 needs a server and a channel for VATSIM.");
    Type("ServerCOM1", "voice.example");
    EXPECT_EQ(TextOf("RadioRemark"), "COM1 needs a channel for VATSIM.");
    Pick("SoftwareCOM2", 5);
    EXPECT_EQ(TextOf("RadioRemark"), "COM1 needs a channel for VATSIM. COM2 needs a server for Voice ATIS.");
    Type("ChannelCOM1", "tower");
    Pick("SoftwareCOM2", 0);
    EXPECT_FALSE(At<QLabel>("RadioRemark").isVisible());
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
    EXPECT_EQ(TakeEvents(), std::vector<std::string>(5, "radio voice changed 1"));
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
    ClickMouse(&edit, Qt::LeftButton);
    TypeText(&edit, "rw.example.net");
    EXPECT_EQ(setUp.NetworkLink.Session().Voice[0].Server, "");
    ClickMouse(&At<QLineEdit>("ChannelCOM1"), Qt::LeftButton);
    Settle();
    EXPECT_EQ(setUp.NetworkLink.Session().Voice[0].Server, "rw.example.net");
    EXPECT_EQ(TakeEvents(), Events({"radio voice changed 0"}));
}

TEST_F(DeckNetwork, AFieldThatWasNotChangedTellsNothing) {
    ConnectAll();
    ClickMouse(&At<QLineEdit>("ServerCOM1"), Qt::LeftButton);
    ClickMouse(&At<QLineEdit>("ChannelCOM1"), Qt::LeftButton);
    Settle();
    EXPECT_EQ(TakeEvents(), Events({}));
}

TEST_F(DeckNetwork, AChangeElsewhereLeavesAloneWhatTheUserTypes) {
    ConnectAll();
    auto& edit = At<QLineEdit>("ServerCOM1");
    ClickMouse(&edit, Qt::LeftButton);
    TypeText(&edit, "rw.exa");
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
    std::vector<std::string> told = TakeEvents();
    std::sort(told.begin(), told.end());
    EXPECT_EQ(told, Events({"network connected", "session opened", "simulator connected"}));
    EXPECT_EQ(At<QLineEdit>("Callsign").text(), "ORV123");
    EXPECT_EQ(At<QLineEdit>("FrequencyCOM1").text(), "122.800");
    EXPECT_EQ(At<QComboBox>("SoftwareCOM1").currentText(), "None");
    EXPECT_EQ(At<QComboBox>("Receive").currentText(), "COM1");
    EXPECT_EQ(At<QComboBox>("Transmit").currentText(), "COM1");
    EXPECT_TRUE(At<QCheckBox>("SessionConnected").isChecked());
}

}  // namespace
}  // namespace orvelle
