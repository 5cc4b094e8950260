// The road of one radio change, by real clicks and keys from end to end.
#include <QApplication>
#include <QElapsedTimer>
#include <QListWidget>
#include <QTimer>

#include "tests/endtoend/PanelTest.h"
#include "tests/store/LockedStore.h"

namespace orvelle {

namespace {

const std::string Join = "|/join1|srv1/ops|/priority|high|/netspeed|2|/callsign|ABC123|\n";

class RoadTest : public PanelTest {
protected:
    void TickRogerWilco() {
        ShowPage("RogerWilco");
        user.Click(OfPanel("RWEnable"));
        ASSERT_TRUE(ComesTrue([this] { return panel.RWEnable.Value == 1; }));
    }
    void MapF8() {
        user.Click(OfPanel("RWKeySet"));
        ASSERT_TRUE(ComesTrue([this] { return panel.RWKeySet.Caption == "Cancel"; }));
        user.Click(OfDeck("KeyboardField"));
        user.Do({"key", "F8"});
        ASSERT_TRUE(ComesTrue([this] { return panel.Variables().RWFSKey == "F8"; }));
    }
    void TuneCom1() {
        house.Outside.Practice.NetworkLink.SetVoice(0, {RogerWilco, "srv1", "ops", "", ""});
        ASSERT_TRUE(ComesTrue([this] { return panel.Variables().ActiveVoiceSoftware == RogerWilco; }));
    }
    // What the deck tells of this computer's keys.
    std::string HeldHere() { return static_cast<QLabel&>(OfDeck("HeldKeysText")).text().toStdString(); }
    // From the start to the mapped key held over there and the talk key held here.
    void HoldTheTalkKey() {
        ASSERT_NO_FATAL_FAILURE(Open());
        ASSERT_NO_FATAL_FAILURE(Connect());
        ASSERT_NO_FATAL_FAILURE(TickRogerWilco());
        ASSERT_NO_FATAL_FAILURE(MapF8());
        ASSERT_NO_FATAL_FAILURE(TuneCom1());
        user.KeyDown("F8");
        ASSERT_TRUE(ComesTrue([this] { return user.SeesDown(TalkKey); }));
    }
};

TEST_F(RoadTest, ATunedRadioStartsTheVoiceProgramAndAKeyOverThereHoldsItsTalkKeyHere) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    ASSERT_NO_FATAL_FAILURE(TickRogerWilco());
    ASSERT_NO_FATAL_FAILURE(MapF8());

    user.Enter(OfDeck("ServerCOM1"), "srv1");
    user.Enter(OfDeck("ChannelCOM1"), "ops");
    user.Click(OfDeck("SoftwareCOM1"));
    user.Do({"key", "Down"});
    user.Do({"key", "Return"});
    EXPECT_TRUE(ComesTrue([this] { return VoiceCommands() == Join; })) << VoiceCommands();
    EXPECT_EQ(panel.CommentCOM1.Caption(), "srv1/ops");

    user.Click(OfDeck("KeyboardField"));
    EXPECT_EQ(HeldHere(), "The panel holds no key down");
    user.KeyDown("F8");
    EXPECT_TRUE(ComesTrue([this] { return user.SeesDown(TalkKey); }));
    EXPECT_TRUE(ComesTrue([this] { return HeldHere() == "The panel holds F12 down"; })) << HeldHere();
    user.KeyUp("F8");
    EXPECT_TRUE(ComesTrue([this] { return !user.SeesDown(TalkKey); }));
    EXPECT_TRUE(ComesTrue([this] { return HeldHere() == "The panel holds no key down"; })) << HeldHere();
}

TEST_F(RoadTest, WhatThePanelStrikesHereIsNotTypedOverThere) {
    ASSERT_NO_FATAL_FAILURE(HoldTheTalkKey());
    user.KeyDown("a");
    EXPECT_TRUE(ComesTrue([this] { return house.Outside.Practice.SimulatorLink.HeldSequence() == "F8+A"; }))
        << house.Outside.Practice.SimulatorLink.HeldSequence();
    user.KeyUp("a");
    user.KeyUp("F8");
    EXPECT_TRUE(ComesTrue([this] { return !user.SeesDown(TalkKey); }));
}

TEST_F(RoadTest, ALostLinkReleasesTheTalkKeyThatIsHeld) {
    ASSERT_NO_FATAL_FAILURE(HoldTheTalkKey());

    user.Click(OfDeck("SimulatorLink"));
    EXPECT_TRUE(ComesTrue([this] { return !user.SeesDown(TalkKey) && !panel.Panels(4).Enabled; }));
    EXPECT_EQ(panel.Variables().RWPTTKeyState, "");
    user.KeyUp("F8");
}

// A change that can't be written waits meanwhile, and was told.
TEST_F(RoadTest, TheTalkKeyComesAndGoesWhileAnotherProgramHoldsTheSettings) {
    ASSERT_NO_FATAL_FAILURE(HoldTheTalkKey());
    user.KeyUp("F8");
    const store::LockedStore locked(folder.filePath("settings.sqlite").toStdString());
    int told = 0;
    QTimer reads;
    QObject::connect(&reads, &QTimer::timeout, [&told] {
        QWidget* const box = QApplication::activeModalWidget();
        if (box && box->close()) ++told;
    });
    reads.start(100);
    house.Settings.Store.SaveSettingLong("OrvelleCP", "Left", 1);
    house.Settings.Store.HandlerEnded();
    ASSERT_TRUE(ComesTrue([&told] { return told == 1; }));

    user.Click(OfDeck("KeyboardField"));
    QElapsedTimer time;
    time.start();
    for (int stroke = 1; stroke <= 5; ++stroke) {
        user.KeyDown("F8");
        ASSERT_TRUE(ComesTrue([this] { return user.SeesDown(TalkKey); }));
        user.KeyUp("F8");
        ASSERT_TRUE(ComesTrue([this] { return !user.SeesDown(TalkKey); }));
    }
    RecordProperty("MillisecondsOfFiveStrokes", std::to_string(time.elapsed()));
    EXPECT_EQ(told, 1);
}

TEST_F(RoadTest, ARoleThatAnotherComputerHoldsIsNotServedHereUntilItIsDropped) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    user.Click(OfDeck("ClaimRWCom1"));
    ASSERT_TRUE(ComesTrue([this] { return panel.Variables().ForeignRWCom1 != 0; }));
    ASSERT_NO_FATAL_FAILURE(TickRogerWilco());
    house.Outside.Practice.NetworkLink.SetVoice(0, {RogerWilco, "srv1", "ops", "", ""});
    ASSERT_TRUE(ComesTrue([this] { return panel.CommentCOM1.Caption == "srv1/ops"; }));
    EXPECT_EQ(panel.Variables().ActiveVoiceSoftware, NoVoice);
    EXPECT_EQ(VoiceCommands(), "");

    user.Click(OfDeck("ClaimRWCom1"));
    EXPECT_TRUE(ComesTrue([this] { return VoiceCommands() == Join; })) << VoiceCommands();
    EXPECT_NE(panel.Variables().RWCom1, 0);
}

TEST_F(RoadTest, AVoiceProgramThatIsNotThereIsToldOnTheDeckAlone) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    ASSERT_NO_FATAL_FAILURE(TickRogerWilco());
    user.Enter(OfPanel("RWPath"), "/nowhere/roger.exe");
    ASSERT_TRUE(ComesTrue([this] { return panel.RWPath.Text == "/nowhere/roger.exe"; }));
    ASSERT_NO_FATAL_FAILURE(TuneCom1());
    const auto& programs = dynamic_cast<QListWidget&>(OfDeck("Programs"));
    EXPECT_TRUE(ComesTrue([&] { return programs.count() == 1; }));
    EXPECT_TRUE(programs.count() == 1 && programs.item(0)->text().contains("/nowhere/roger.exe"));
}

}  // namespace

}  // namespace orvelle
