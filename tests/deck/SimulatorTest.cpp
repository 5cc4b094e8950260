// The simulator's side but its keyboard: link, servers, joysticks, sounds and starts of programs.
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>

#include "deck/fields/SignalLight.h"
#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

class DeckSimulator : public DeckRig {};

TEST_F(DeckSimulator, TheSwitchTakesTheLinkUpAndDown) {
    EXPECT_EQ(TextOf("SimulatorStateText"), "Down, server AUTOMATIC");
    Click("SimulatorLink");
    EXPECT_EQ(TakeEvents(), Events({"simulator connected"}));
    EXPECT_EQ(TextOf("SimulatorStateText"), "Connected, server AUTOMATIC");
    Click("SimulatorLink");
    EXPECT_EQ(TakeEvents(), Events({"simulator disconnected"}));
    EXPECT_EQ(TextOf("SimulatorStateText"), "Down, server AUTOMATIC");
}

TEST_F(DeckSimulator, ALinkOnItsWaySaysSo) {
    setUp.SimulatorLink.SetDelay(60'000);
    Click("SimulatorLink");
    EXPECT_EQ(TextOf("SimulatorStateText"), "Not up yet, server AUTOMATIC");
    EXPECT_TRUE(At<QCheckBox>("SimulatorLink").isChecked());
}

TEST_F(DeckSimulator, TheServerInUseFollowsThePanel) {
    velmarc.SetServer("TOWERPC");
    Settle();
    EXPECT_EQ(TextOf("SimulatorStateText"), "Down, server TOWERPC");
    velmarc.SetServer("");
    Settle();
    EXPECT_EQ(TextOf("SimulatorStateText"), "Down, server (empty)");
}

TEST_F(DeckSimulator, AServerIsSeenByTheButtonOrEnterAsItIsTyped) {
    EXPECT_EQ(TextOf("SimulatorServersSeen"), "None yet");
    Type("SimulatorServerSeen", " 127.0.0.1 ");
    At<QLineEdit>("SimulatorServerSeen").setText("TOWERPC");
    Click("SimulatorSeeServer");
    EXPECT_EQ(TakeEvents(), Events({"simulator found  127.0.0.1 ", "simulator found TOWERPC"}));
    EXPECT_EQ(TextOf("SimulatorServersSeen"), " 127.0.0.1 , TOWERPC");
}

TEST_F(DeckSimulator, NoServerIsSeenWithoutAName) {
    At<QLineEdit>("SimulatorServerSeen").clear();
    Click("SimulatorSeeServer");
    EXPECT_EQ(TakeEvents(), Events({}));
}

TEST_F(DeckSimulator, AJoystickButtonIsDownAsLongAsTheMouseHoldsIt) {
    ConnectAll();
    auto& button = At<QWidget>("Stick3");
    PressMouse(&button, Qt::LeftButton);
    Settle();
    EXPECT_EQ(TakeEvents(), Events({"button down Stick.Button 3"}));
    EXPECT_EQ(setUp.SimulatorLink.HeldButtons(), Events({"Stick.Button 3"}));
    ReleaseMouse(&button, Qt::LeftButton);
    Settle();
    EXPECT_EQ(TakeEvents(), Events({"button up Stick.Button 3"}));
}

TEST_F(DeckSimulator, TheSpaceBarHoldsAJoystickButtonToo) {
    ConnectAll();
    auto& button = At<QWidget>("Throttle8");
    button.setFocus();
    PressKey(&button, Qt::Key_Space);
    Settle();
    EXPECT_EQ(TakeEvents(), Events({"button down Throttle.Button 8"}));
    ReleaseKey(&button, Qt::Key_Space);
    Settle();
    EXPECT_EQ(TakeEvents(), Events({"button up Throttle.Button 8"}));
}

TEST_F(DeckSimulator, AHeldButtonIsReportedUpBeforeItsLinkIsLost) {
    ConnectAll();
    PressMouse(&At<QWidget>("Stick1"), Qt::LeftButton);
    setUp.SimulatorLink.SetLink(LinkState::Down);
    Settle();
    ReleaseMouse(&At<QWidget>("Stick1"), Qt::LeftButton);
    Settle();
    EXPECT_EQ(TakeEvents(),
              Events({"button down Stick.Button 1", "button up Stick.Button 1", "simulator disconnected"}));
}

TEST_F(DeckSimulator, ClosingTheWindowLetsGoWhatIsHeld) {
    ConnectAll();
    PressMouse(&At<QWidget>("Stick1"), Qt::LeftButton);
    Settle();
    CloseByHand();
    Settle();
    EXPECT_EQ(TakeEvents(), Events({"button down Stick.Button 1", "button up Stick.Button 1"}));
}

TEST_F(DeckSimulator, SoundsAreListedInTheirOrderWithTheirTime) {
    ConnectAll();
    velmarc.PlaySound("Tessaly\\RADIO_ONCHANNEL.wav");
    velmarc.PlaySound("Tessaly\\RADIO_NOCHANNEL.wav");
    Settle();
    velmarc.PlaySound("Tessaly\\RADIO_ONCHANNEL.wav");
    Settle();
    const auto& list = At<QListWidget>("Sounds");
    ASSERT_EQ(list.count(), 3);
    EXPECT_TRUE(list.item(0)->text().endsWith("  Tessaly\\RADIO_ONCHANNEL.wav"));
    EXPECT_TRUE(list.item(1)->text().endsWith("  Tessaly\\RADIO_NOCHANNEL.wav"));
    EXPECT_TRUE(list.item(2)->text().contains(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d  ")));
}

TEST_F(DeckSimulator, TheLatestSoundStaysInSightWhenTheListChangesItsSize) {
    ConnectAll();
    for (int sound = 1; sound <= 50; ++sound) velmarc.PlaySound(std::to_string(sound));
    Settle();
    auto& list = At<QListWidget>("Sounds");
    const auto lastIsSeen = [&list] {
        return list.viewport()->rect().contains(list.visualItemRect(list.item(list.count() - 1)));
    };
    EXPECT_TRUE(lastIsSeen());
    for (const int height : {500, 700, 450}) {
        window.resize(window.width(), height);
        Settle();
        EXPECT_TRUE(lastIsSeen()) << "at a height of " << height;
    }
    list.scrollToTop();
    window.resize(window.width(), 600);
    Settle();
    EXPECT_FALSE(lastIsSeen()) << "the user looks at earlier ones";
}

TEST_F(DeckSimulator, TheListOfSoundsKeepsTheLast200) {
    ConnectAll();
    for (int sound = 1; sound <= 250; ++sound) velmarc.PlaySound(std::to_string(sound));
    Settle();
    velmarc.PlaySound("last");
    Settle();
    const auto& list = At<QListWidget>("Sounds");
    EXPECT_EQ(list.count(), 200);
    EXPECT_TRUE(list.item(0)->text().endsWith("  52"));
    EXPECT_TRUE(list.item(199)->text().endsWith("  last"));
}

TEST_F(DeckSimulator, LinesOfAListAreCopiedInTheirOrderAndCleared) {
    for (const char* line : {"one", "two", "three"}) window.TellOfProgram(line);
    auto& list = At<QListWidget>("Programs");
    list.setFocus();
    const auto clickLine = [&list](int row, Qt::KeyboardModifiers modifiers) {
        list.scrollToItem(list.item(row));
        ClickMouse(list.viewport(), Qt::LeftButton, modifiers, list.visualItemRect(list.item(row)).center());
    };
    clickLine(2, {});
    clickLine(0, Qt::ControlModifier);
    ClickKey(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), list.item(0)->text() + "\n" + list.item(2)->text());
    const QList<QAction*> menu = list.actions();
    ASSERT_EQ(menu.size(), 3);
    menu.at(1)->trigger();
    menu.at(0)->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 2);
    menu.at(2)->trigger();
    EXPECT_EQ(list.count(), 0);
    EXPECT_FALSE(menu.at(0)->isEnabled());
    window.TellOfProgram("four");
    EXPECT_EQ(list.count(), 1);
}

TEST_F(DeckSimulator, AFailedStartIsToldInItsSentence) {
    window.TellOfProgram("No program was started, because there is no file \"/opt/rw\".");
    const auto& list = At<QListWidget>("Programs");
    ASSERT_EQ(list.count(), 1);
    EXPECT_TRUE(list.item(0)->text().endsWith("  No program was started, because there is no file \"/opt/rw\"."));
}

TEST_F(DeckSimulator, WhatThePanelHoldsDownHereIsShown) {
    EXPECT_EQ(TextOf("HeldKeysText"), "The panel holds no key down");
    heldKeys.Hold({"Ctrl", "F12"});
    EXPECT_EQ(TextOf("HeldKeysText"), "The panel holds Ctrl+F12 down");
    EXPECT_EQ(At<deck::SignalLight>("HeldKeys").Shown(), Sign::Good);
    heldKeys.Hold({});
    EXPECT_EQ(TextOf("HeldKeysText"), "The panel holds no key down");
}

}  // namespace
}  // namespace orvelle
