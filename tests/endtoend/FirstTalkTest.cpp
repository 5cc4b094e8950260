// The first road of README.md, by real clicks and keys, led by what the deck says to try.
#include <QLabel>

#include "deck/FirstFlight.h"
#include "tests/endtoend/PanelTest.h"

namespace orvelle {

namespace {

class FirstTalkTest : public PanelTest {
protected:
    bool IsToldToTry(const char* words) {
        return ComesTrue([&] { return Words("NextStep").contains(words); });
    }
    QString Words(const char* label) { return house.Deck->findChild<QLabel*>(label)->text(); }
};

TEST_F(FirstTalkTest, WhatTheDeckSaysToTryLeadsToAVoiceThatTalks) {
    ASSERT_NO_FATAL_FAILURE(Open());
    PrepareFirstFlight(house.Outside.Practice.Sides());
    ASSERT_TRUE(IsToldToTry("click VATSIM")) << Words("NextStep").toStdString();
    ShowPage("VATSIM");
    user.Click(OfPanel("VVLEnable"));

    ASSERT_TRUE(IsToldToTry("tune COM1")) << Words("NextStep").toStdString();
    user.Click(OfDeck("SoftwareCOM1"));
    user.Do({"key", "v"});
    user.Do({"key", "Return"});
    EXPECT_TRUE(ComesTrue([this] { return Words("RadioRemark") == "COM1 needs a server and a channel for VATSIM."; }));
    user.Enter(OfDeck("ServerCOM1"), "voice.example");
    user.Enter(OfDeck("ChannelCOM1"), "tower");

    ASSERT_TRUE(IsToldToTry("click Key mappings")) << Words("NextStep").toStdString();
    ShowPage("Key mappings");
    user.Click(OfPanel("VVLKeySet"));
    ASSERT_TRUE(ComesTrue([this] { return panel.VVLKeySet.Caption == "Cancel"; }));
    user.Click(OfDeck("KeyboardField"));
    user.Do({"key", "F9"});
    ASSERT_TRUE(ComesTrue([this] { return panel.VVLFSKeyDisplay.Text == "F9"; }));

    user.KeyDown("F9");
    EXPECT_TRUE(ComesTrue([this] { return Words("TalksCOM1Text") == "COM1 talks"; }));
    EXPECT_TRUE(IsToldToTry("let go of the key")) << Words("NextStep").toStdString();
    user.KeyUp("F9");
    EXPECT_TRUE(ComesTrue([this] { return Words("TalksCOM1Text") == "COM1 silent"; }));
}

}  // namespace

}  // namespace orvelle
