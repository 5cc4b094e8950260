// The window as a whole: names, keyboard, place, and that it rests while nothing happens.
#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QScrollBar>
#include <set>

#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

constexpr int LeastFrame = 24;

class DeckWindowTest : public DeckRig {
protected:
    // What the user operates; parts of such widgets are none.
    std::vector<QWidget*> Fields() {
        std::vector<QWidget*> fields;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            const bool isPart = qobject_cast<QAbstractSpinBox*>(widget->parentWidget()) ||
                                widget->objectName().startsWith("qt_") || widget->objectName() == "ScrollLeftButton" ||
                                widget->objectName() == "ScrollRightButton" || widget->inherits("QTableCornerButton") ||
                                widget->inherits("QComboBoxListView");
            const bool isField = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLineEdit*>(widget) ||
                                 qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractSpinBox*>(widget) ||
                                 qobject_cast<QAbstractItemView*>(widget) || widget->objectName() == "KeyboardField";
            if (isField && !isPart && !widget->inherits("QHeaderView")) fields.push_back(widget);
        }
        return fields;
    }
};

TEST_F(DeckWindowTest, EveryFieldHasANameOfItsOwnAndATip) {
    std::set<QString> names;
    for (const QWidget* field : Fields()) {
        const std::string name = field->objectName().toStdString();
        EXPECT_FALSE(name.empty()) << "a " << field->metaObject()->className() << " without a name";
        EXPECT_TRUE(names.insert(field->objectName()).second) << name << " is there twice";
        EXPECT_FALSE(field->toolTip().isEmpty()) << name << " has no tool tip";
    }
    EXPECT_GT(names.size(), 100U);
}

TEST_F(DeckWindowTest, EveryFieldTakesTheFocusByKeyboard) {
    for (const QWidget* field : Fields())
        EXPECT_TRUE(field->focusPolicy() & Qt::TabFocus) << field->objectName().toStdString();
}

TEST_F(DeckWindowTest, NoTwoMnemonicsOfAPageAreAlike) {
    auto& pages = At<QTabWidget>("DeckPages");
    for (int index = 0; index < pages.count(); ++index) {
        std::set<QKeySequence> seen;
        const auto meet = [&](const QString& text) {
            const QKeySequence mnemonic = QKeySequence::mnemonic(text);
            if (!mnemonic.isEmpty()) {
                EXPECT_TRUE(seen.insert(mnemonic).second) << text.toStdString();
            }
        };
        for (int tab = 0; tab < pages.count(); ++tab) meet(pages.tabText(tab));
        for (const auto* button : pages.widget(index)->findChildren<QAbstractButton*>()) meet(button->text());
        for (const auto* label : pages.widget(index)->findChildren<QLabel*>())
            if (label->buddy()) meet(label->text());
    }
}

TEST_F(DeckWindowTest, AMnemonicLeadsToItsField) {
    ClickKey(&window, Qt::Key_V, Qt::AltModifier);
    EXPECT_TRUE(At<QWidget>("ServerCOM1").hasFocus());
    ClickKey(&window, Qt::Key_K, Qt::AltModifier);
    EXPECT_TRUE(At<QWidget>("KeyboardField").hasFocus());
}

TEST_F(DeckWindowTest, ItSaysWhatItIs) { EXPECT_EQ(window.windowTitle(), "OrvelleCP Flight Deck"); }

TEST_F(DeckWindowTest, ClosedAtTheEndOfTheSessionItGoesAndTellsNothing) {
    window.Closed = [] { FAIL() << "the user did not close it"; };
    EXPECT_TRUE(window.close());
}

TEST_F(DeckWindowTest, ClosedByHandItIsHiddenAndTellsIt) {
    int told = 0;
    window.Closed = [&told] { ++told; };
    CloseByHand();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(told, 1);
}

TEST_F(DeckWindowTest, ItOpensWithoutTakingTheFocus) {
    EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(DeckWindowTest, ItOpensThereWithItsFrame) {
    DeckWindow other(setUp.Sides());
    const QRect frame(40, 30, 700, 500);
    other.OpenIn(frame);
    EXPECT_EQ(other.frameGeometry().topLeft(), frame.topLeft());
    EXPECT_LE(other.width(), frame.width());
    EXPECT_LE(other.height(), frame.height() - LeastFrame) << "a title above would push its foot out";
}

TEST_F(DeckWindowTest, NothingRunsWhileNothingHappens) {
    ConnectAll();
    window.setFocus();
    const auto timers = [this] {
        qsizetype count = 0;
        auto* dispatcher = QAbstractEventDispatcher::instance();
        for (QObject* object : window.findChildren<QObject*>()) count += dispatcher->registeredTimers(object).size();
        return count;
    };
    // The toolkit's own one-shot timers of layouts and views run out.
    EXPECT_TRUE(WaitFor([&] { return timers() == 0; }));
}

TEST_F(DeckWindowTest, WhatIsNotPlayedHereHasNoPart) {
    const DeckWindow whole(setUp.Sides());
    FarSides fewer = setUp.Sides();
    fewer.VoiceEngine = nullptr;
    fewer.ServingEngine = nullptr;
    fewer.HeadsetMixer = nullptr;
    fewer.TeamSpeak = nullptr;
    const DeckWindow withoutSound(fewer);
    for (const char* name : {"VoicePage", "FlightEngine", "TalksCOM1", "Mixers", "HeadsetMixerDelay", "TeamSpeak"}) {
        EXPECT_TRUE(whole.findChild<QWidget*>(name)) << name;
        EXPECT_FALSE(withoutSound.findChild<QWidget*>(name)) << name;
    }
    EXPECT_TRUE(withoutSound.findChild<QWidget*>("KeyboardField"));

    fewer = {};
    const DeckWindow withNothing(fewer);
    for (const char* name : {"SimulatorPage", "NetworkPage", "VoicePage", "RefuseSession", "TellNotice"})
        EXPECT_FALSE(withNothing.findChild<QWidget*>(name)) << name;
}

TEST_F(DeckWindowTest, ADeckThatGoesLeavesTheSetUpAlone) {
    {
        DeckWindow other(setUp.Sides());
        setUp.SimulatorLink.SetLink(LinkState::Up);
    }
    Settle();
    float value = 0;
    EXPECT_FALSE(setUp.VVL.Calibrate(-1, -1, value, value));
}

TEST_F(DeckWindowTest, AboutTellsTheVersion) {
    QCoreApplication::setApplicationVersion("1.2.3");
    Click("About");
    const QPointer<QMessageBox> box = &At<QMessageBox>("AboutBox");
    EXPECT_TRUE(box->isVisible());
    EXPECT_TRUE(box->text().contains("Orvelle Control Panel 1.2.3")) << box->text().toStdString();
    ClickMouse(box->button(QMessageBox::Close), Qt::LeftButton);
    Settle();
    EXPECT_TRUE(!box || !box->isVisible());
}

TEST_F(DeckWindowTest, ThePageStaysInItsPlaceWhileItsWordsChange) {
    ConnectAll();
    const auto places = [this] {
        std::vector<QPoint> found;
        for (const char* name : {"SimulatorLink", "SimulatorServerSeen", "KeyboardField", "FrequencyCOM1", "ServerCOM1",
                                 "ChannelCOM2", "Receive"})
            found.push_back(At<QWidget>(name).mapTo(&window, QPoint()));
        return found;
    };
    const std::vector<QPoint> before = places();
    Type("FrequencyCOM1", "abc");
    EXPECT_EQ(places(), before);
    Pick("SoftwareCOM1", 3);
    setUp.NetworkLink.SetStatus(1);
    Type("ServerCOM1", "voice.example");
    setUp.VVL.Start(3);
    Settle();
    setUp.VVL.RoomJoin(0, "ORV123", "voice.example/");
    Settle();
    EXPECT_TRUE(TextOf("NextStep").contains("Key mappings"));
    EXPECT_EQ(places(), before);
}

TEST_F(DeckWindowTest, ASoundServerLeavesItsWidth) {
    setUp.VolumeControl.StandBack();
    setUp.VolumeControlHP.StandBack();
    const DeckWindow withServer(Sides());
    embedded::SetUp played(loop);
    const DeckWindow without(played.Sides());
    EXPECT_EQ(withServer.UsualSize(), without.UsualSize());
    EXPECT_EQ(withServer.LeastWidth(), without.LeastWidth());
}

TEST_F(DeckWindowTest, TheKeyboardsWordsMoveNothing) {
    for (const bool hasServer : {false, true}) {
        if (hasServer) {
            setUp.VolumeControl.StandBack();
            setUp.VolumeControlHP.StandBack();
        }
        ConnectAll();
        window.resize(window.LeastWidth(), 700);
        At<QWidget>("Callsign").setFocus();
        Settle();
        const auto places = [this] {
            std::vector<QRect> found;
            for (const QWidget* widget : At<QWidget>("FlightPage").findChildren<QWidget*>())
                found.push_back({widget->mapTo(&window, QPoint()), widget->size()});
            for (const QScrollBar* bar : window.findChildren<QScrollBar*>()) found.push_back({0, 0, bar->maximum(), 0});
            return found;
        };
        const std::vector<QRect> before = places();
        const int least = window.LeastWidth();
        Click("KeyboardField");
        EXPECT_EQ(places(), before) << "by the click";
        for (const char* key : {"Right Ctrl", "Right Shift", "Num Enter", "Page Down"})
            setUp.SimulatorLink.PressKey(key);
        Settle();
        EXPECT_EQ(TextOf("KeysHeld"), "Right Ctrl+Right Shift+Num Enter+Page Down");
        EXPECT_EQ(places(), before) << "by keys";
        setUp.SimulatorLink.ReleaseAll();
        setUp.SimulatorLink.SetLink(LinkState::Down);
        Settle();
        EXPECT_EQ(window.LeastWidth(), least);
    }
}

}  // namespace
}  // namespace orvelle
