// Session and radios beside a simulator that sets them, and beside a directory that knows what a frequency means.
#include <QLabel>
#include <QLineEdit>
#include <map>

#include "deck/fields/SignalLight.h"
#include "deck/pages/NetworkPage.h"
#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

class DeckHandOver : public DeckRig {
protected:
    DeckHandOver() {
        ConnectAll();
        page.show();
        page.activateWindow();
        EXPECT_TRUE(WaitForWindowActive(&page));
    }

    template <typename Widget>
    Widget& On(const char* name) {
        return *page.findChild<Widget*>(name);
    }
    void TypeOn(const char* name, const QString& text, Qt::Key end = Qt::Key_Return) {
        auto& edit = On<QLineEdit>(name);
        ClickMouse(&edit, Qt::LeftButton);
        edit.selectAll();
        ClickKey(&edit, Qt::Key_Delete);
        TypeText(&edit, text);
        if (end != Qt::Key_unknown) ClickKey(&edit, end);
        Settle();
    }
    QString LookedUp() { return On<QLabel>("RadioLookedUpText").text(); }
    const SessionSetting& Session() const { return setUp.NetworkLink.Session(); }

    std::map<std::string, deck::FoundChannel> directory;
    deck::NetworkPage page{{.Network = &setUp.NetworkLink},
                           [this](const std::string& frequency) { return directory[frequency]; }};
};

TEST_F(DeckHandOver, ASimulatorThatRulesTakesSessionAndRadios) {
    setUp.NetworkLink.SetFrequency(0, "122.800");
    EXPECT_FALSE(On<QLabel>("Ruler").isVisible());
    page.ShowRuler("FlightGear sets session and radios.");
    EXPECT_EQ(On<QLabel>("Ruler").text(), "FlightGear sets session and radios.");
    EXPECT_TRUE(On<QLabel>("Ruler").isVisible());
    for (const char* field : {"SessionOpen", "Callsign", "FrequencyCOM1", "SoftwareCOM2", "Receive"})
        EXPECT_FALSE(On<QWidget>(field).isEnabled()) << field;
    setUp.NetworkLink.SetFrequency(0, "118.300");
    Settle();
    EXPECT_EQ(On<QLineEdit>("FrequencyCOM1").text(), "118.300") << "it is shown all the same";
    page.ShowRuler("");
    EXPECT_FALSE(On<QLabel>("Ruler").isVisible());
    for (const char* field : {"SessionOpen", "Callsign", "FrequencyCOM1", "SoftwareCOM2", "Receive"})
        EXPECT_TRUE(On<QWidget>(field).isEnabled()) << field;
}

TEST_F(DeckHandOver, WhatIsHalfTypedAsASimulatorComesIsNotApplied) {
    setUp.NetworkLink.SetCallsign("ORV1");
    Settle();
    TypeOn("Callsign", "NEW", Qt::Key_unknown);
    TypeOn("FrequencyCOM1", "118.3", Qt::Key_unknown);
    TypeOn("Callsign", "NEWER", Qt::Key_unknown);
    TakeEvents();
    const SessionSetting before = Session();
    page.ShowRuler("FlightGear sets session and radios.");
    Settle();
    EXPECT_EQ(Session(), before);
    EXPECT_EQ(On<QLineEdit>("Callsign").text().toStdString(), before.Callsign);
    EXPECT_EQ(TakeEvents(), Events({}));
}

TEST_F(DeckHandOver, AFrequencyBringsTheRecordThatADirectoryHasForIt) {
    directory["118.300"] = {RadioVoiceSetting{2, "voice.example.org", "Keflavik Tower", "pilot", "secret"},
                            "BIKF_TWR, the only station"};
    TypeOn("FrequencyCOM1", "118.3");
    EXPECT_EQ(Session().Frequency[0], "118.300");
    EXPECT_EQ(Session().Voice[0], *directory["118.300"].Voice);
    EXPECT_EQ(On<QLineEdit>("ChannelCOM1").text(), "Keflavik Tower");
    EXPECT_EQ(LookedUp(), "COM1 on 118.300: BIKF_TWR, the only station.");
    EXPECT_EQ(Session().Voice[1], RadioVoiceSetting());
    TypeOn("ChannelCOM1", "Another one");
    setUp.NetworkLink.SetCallsign("ORV2");
    Settle();
    EXPECT_EQ(Session().Voice[0].Channel, "Another one") << "stands until the next frequency";
    TypeOn("FrequencyCOM1", "118.3");
    EXPECT_EQ(Session().Voice[0].Channel, "Keflavik Tower");
    EXPECT_TRUE(On<QLabel>("RadioLookedUpText").isVisible());
    setUp.NetworkLink.SetFrequency(0, "121.500");
    Settle();
    EXPECT_FALSE(On<QLabel>("RadioLookedUpText").isVisible()) << "somebody else has tuned away";
}

TEST_F(DeckHandOver, AFrequencyThatNoDirectoryListsLeavesTheRecord) {
    directory["125.000"] = {std::nullopt, "not listed"};
    const RadioVoiceSetting before{1, "rw.example.net", "Tower", "", ""};
    setUp.NetworkLink.SetVoice(1, before);
    TypeOn("FrequencyCOM2", "125");
    EXPECT_EQ(Session().Voice[1], before);
    EXPECT_EQ(LookedUp(), "COM2 on 125.000: not listed; its voice record stays as it is.");
    TypeOn("FrequencyCOM2", "abc");
    EXPECT_FALSE(On<QLabel>("RadioLookedUpText").isVisible()) << "what was refused is told alone";
}

TEST_F(DeckHandOver, ARecordThatADirectoryBroughtGoesWithItsFrequency) {
    directory["118.300"] = {RadioVoiceSetting{2, "voice.example.org", "Keflavik Tower", "pilot", "secret"},
                            "BIKF_TWR, the only station"};
    directory["125.000"] = {std::nullopt, "not listed"};
    for (const QString next : {"125", ""}) {
        TypeOn("FrequencyCOM1", "118.3");
        TypeOn("FrequencyCOM1", "abc");
        EXPECT_EQ(Session().Voice[0], *directory["118.300"].Voice) << "what was refused changes nothing";
        TypeOn("FrequencyCOM1", next);
        EXPECT_EQ(Session().Voice[0], RadioVoiceSetting());
    }
    TypeOn("FrequencyCOM1", "118.3");
    TypeOn("FrequencyCOM1", "125");
    EXPECT_EQ(LookedUp(), "COM1 on 125.000: not listed; it has no voice record.");
    TypeOn("FrequencyCOM1", "118.3");
    TypeOn("ChannelCOM1", "Another one");
    TypeOn("FrequencyCOM1", "125");
    EXPECT_EQ(Session().Voice[0].Channel, "Another one") << "it was the user's";
}

TEST_F(DeckHandOver, APasswordIsHiddenUnlessItIsTyped) {
    for (const char* field : {"PasswordCOM1", "PasswordCOM2"})
        EXPECT_EQ(On<QLineEdit>(field).echoMode(), QLineEdit::PasswordEchoOnEdit);
}

TEST_F(DeckHandOver, WithoutADirectoryNothingIsSaid) {
    TypeOn("FrequencyCOM1", "118.3");
    EXPECT_EQ(Session().Voice[0], RadioVoiceSetting());
    EXPECT_FALSE(On<QLabel>("RadioLookedUpText").isVisible());
}

}  // namespace
}  // namespace orvelle
