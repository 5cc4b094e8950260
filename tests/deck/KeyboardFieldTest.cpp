// The simulator's keyboard: real key presses and releases become the panel's key events.
#include <QCheckBox>
#include <QKeyEvent>

#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

// A key as the X server tells it: its place and what the toolkit makes of it.
struct Key {
    int Place;
    int Number;
};
constexpr Key LeftCtrl{37, Qt::Key_Control};
constexpr Key RightCtrl{105, Qt::Key_Control};
constexpr Key LetterA{38, Qt::Key_A};
constexpr Key F8{74, Qt::Key_F8};
constexpr Key Digit1{10, Qt::Key_1};
constexpr Key ShiftedDigit1{10, Qt::Key_Exclam};

class DeckKeyboard : public DeckRig {
protected:
    DeckKeyboard() {
        ConnectAll();
        ClickMouse(&field, Qt::LeftButton);
        EXPECT_TRUE(field.hasFocus());
    }

    void Press(const Key& key, bool repeat = false) { Send(QEvent::KeyPress, key, repeat); }
    void Release(const Key& key, bool repeat = false) { Send(QEvent::KeyRelease, key, repeat); }
    // The name by which a press reaches the panel.
    std::string NameOf(const Key& key, Qt::KeyboardModifiers modifiers = {}) {
        events.clear();
        Send(QEvent::KeyPress, key, false, modifiers);
        Send(QEvent::KeyRelease, key, false, modifiers);
        return events.size() == 2 ? events[1].substr(std::string("key up ").size()) : "";
    }

    QWidget& field = At<QWidget>("KeyboardField");

private:
    void Send(QEvent::Type type, const Key& key, bool repeat, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(type, key.Number, modifiers, static_cast<quint32>(key.Place), 0, 0, "", repeat);
        QCoreApplication::sendEvent(&field, &event);
        Settle();
    }
};

TEST_F(DeckKeyboard, AKeyGoesDownAndUp) {
    Press(F8);
    EXPECT_EQ(TakeEvents(), Events({"key down F8 in F8"}));
    EXPECT_EQ(TextOf("KeysHeld"), "F8");
    Release(F8);
    EXPECT_EQ(TakeEvents(), Events({"key up F8"}));
    EXPECT_EQ(TextOf("KeysHeld"), "Listening");
}

TEST_F(DeckKeyboard, KeysHeldTogetherAreASequence) {
    Press(LeftCtrl);
    Press(LetterA);
    Release(LeftCtrl);
    Release(LetterA);
    EXPECT_EQ(TakeEvents(), Events({"key down Ctrl in Ctrl", "key down A in Ctrl+A", "key up Ctrl", "key up A"}));
}

TEST_F(DeckKeyboard, ARepeatingKeyIsDownAgainAsARepeat) {
    Press(LetterA);
    Release(LetterA, true);
    Press(LetterA, true);
    Release(LetterA, true);
    Press(LetterA, true);
    Release(LetterA);
    EXPECT_EQ(TakeEvents(),
              Events({"key down A in A", "key down A in A repeat", "key down A in A repeat", "key up A"}));
}

TEST_F(DeckKeyboard, ARepeatOfAKeyThatWasPressedElsewhereIsNoPress) {
    Press(LetterA, true);
    Release(LetterA);
    EXPECT_EQ(TakeEvents(), Events({}));
}

TEST_F(DeckKeyboard, LosingTheFocusReleasesInTheOrderOfThePresses) {
    Press(LetterA);
    Press(LeftCtrl);
    TakeEvents();
    field.clearFocus();
    Settle();
    EXPECT_EQ(TakeEvents(), Events({"key up A", "key up Ctrl"}));
    EXPECT_EQ(TextOf("KeysHeld"), "Keys");
}

TEST_F(DeckKeyboard, AKeyStaysHeldWhileTheMouseTakesTheLinkDown) {
    Press(F8);
    Click("SimulatorLink");
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(TakeEvents(), Events({"key down F8 in F8", "key up F8", "simulator disconnected"}));
    EXPECT_EQ(TextOf("KeyboardHint"), "The link is down: keys go nowhere");
    Release(F8);
    Press(F8);
    EXPECT_EQ(TakeEvents(), Events({}));
}

TEST_F(DeckKeyboard, AnotherActiveApplicationIsToldWithEachPress) {
    Click("SimulatorActive");
    Press(F8);
    EXPECT_EQ(TakeEvents(), Events({"key down F8 in F8 inactive"}));
}

TEST_F(DeckKeyboard, ShiftRenamesNoKey) {
    Press(Digit1);
    Release(ShiftedDigit1);
    EXPECT_EQ(TakeEvents(), Events({"key down 1 in 1", "key up 1"}));
    EXPECT_EQ(NameOf(ShiftedDigit1, Qt::ShiftModifier), "1");
}

TEST_F(DeckKeyboard, KeysHaveTheirNames) {
    EXPECT_EQ(NameOf(LeftCtrl), "Ctrl");
    EXPECT_EQ(NameOf(RightCtrl), "Right Ctrl");
    EXPECT_EQ(NameOf({62, Qt::Key_Shift}), "Right Shift");
    EXPECT_EQ(NameOf({108, Qt::Key_AltGr}), "Right Alt");
    EXPECT_EQ(NameOf({84, Qt::Key_5}, Qt::KeypadModifier), "Num 5");
    EXPECT_EQ(NameOf({36, Qt::Key_Return}), "Enter");
    EXPECT_EQ(NameOf({104, Qt::Key_Enter}, Qt::KeypadModifier), "Num Enter");
    EXPECT_EQ(NameOf({65, Qt::Key_Space}), "Space");
    EXPECT_EQ(NameOf({9, Qt::Key_Escape}), "Esc");
}

TEST_F(DeckKeyboard, ALetterIsNamedByTheLayout) {
    EXPECT_EQ(NameOf({24, Qt::Key_A}), "A");  // where others have Q
    EXPECT_EQ(NameOf({47, Qt::Key_Odiaeresis}), "Ö");
    EXPECT_EQ(NameOf({38, 0x0424}), "Ф");
}

TEST_F(DeckKeyboard, AKeyWithoutAPlaceIsNamedByItsNumber) {
    EXPECT_EQ(NameOf({0, Qt::Key_F12}), "F12");
    EXPECT_EQ(NameOf({0, Qt::Key_Comma}), ",");
}

TEST_F(DeckKeyboard, AKeyWithoutANameDoesNothing) { EXPECT_EQ(NameOf({0, Qt::Key_LaunchF}), ""); }

TEST_F(DeckKeyboard, ShortcutsOfTheDeckAreKeysHere) {
    ClickKey(&field, Qt::Key_O, Qt::AltModifier);
    Settle();
    EXPECT_EQ(TakeEvents(), Events({"key down Alt in Alt", "key down O in Alt+O", "key up O", "key up Alt"}));
    EXPECT_TRUE(At<QCheckBox>("SessionOpen").isChecked());
}

TEST_F(DeckKeyboard, TabLeavesTheField) {
    ClickKey(&field, Qt::Key_Tab);
    Settle();
    EXPECT_FALSE(field.hasFocus());
    EXPECT_EQ(TakeEvents(), Events({}));
}

}  // namespace
}  // namespace orvelle
