// Combo boxes, with an edit field and without.
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>

#include "tests/qt/forms/ShownPanel.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

using Events = std::vector<std::string>;

class ComboMirrorTest : public ShownPanel {
protected:
    ComboMirrorTest() {
        GoTo(1);
        panel.VelmarcServer.Click = Note("click");
        panel.VelmarcServer.KeyPress = [this](Long code) { events.push_back("key " + std::to_string(code)); };
    }

    QComboBox& Server() { return Widget<QComboBox>(panel.VelmarcServer); }
    void AddServers() {
        panel.VelmarcServer.AddItem("alpha");
        panel.VelmarcServer.AddItem("beta");
    }
    // Picks in the open list, by the keys.
    static void Pick(QComboBox& box, int entry) {
        box.showPopup();
        box.view()->setCurrentIndex(box.model()->index(entry, 0));
        ClickKey(box.view(), Qt::Key_Return);
    }
};

TEST_F(ComboMirrorTest, TheDesignTextAndTheEntriesShow) {
    EXPECT_EQ(Server().currentText(), QStringLiteral("localhost"));
    AddServers();
    EXPECT_EQ(Server().count(), 2);
    EXPECT_EQ(Server().itemText(1), QStringLiteral("beta"));
    EXPECT_EQ(Server().currentText(), QStringLiteral("localhost"));
    EXPECT_EQ(events, Events{});
}

TEST_F(ComboMirrorTest, ASelectionByTheProgramShowsAndClicksOnce) {
    AddServers();
    panel.VelmarcServer.Select(1);
    EXPECT_EQ(Server().currentIndex(), 1);
    EXPECT_EQ(Server().currentText(), QStringLiteral("beta"));
    EXPECT_EQ(events, Events{"click"});
}

TEST_F(ComboMirrorTest, EmptyingTheListLeavesTheText) {
    AddServers();
    panel.VelmarcServer.Select(1);
    panel.VelmarcServer.Clear();
    EXPECT_EQ(Server().count(), 0);
    EXPECT_EQ(Server().currentText(), QStringLiteral("beta"));
    panel.VelmarcServer.AddItem("gamma");
    EXPECT_EQ(Server().currentText(), QStringLiteral("beta"));
}

TEST_F(ComboMirrorTest, APickClicksAlsoOnTheEntryThatIsSelected) {
    AddServers();
    Pick(Server(), 1);
    EXPECT_EQ(panel.VelmarcServer.ListIndex(), 1);
    EXPECT_EQ(panel.VelmarcServer.Text, std::string("beta"));
    Pick(Server(), 1);
    EXPECT_EQ(events, (Events{"click", "click"}));
}

TEST_F(ComboMirrorTest, TypingSelectsNothingAndCompletesNothing) {
    AddServers();
    panel.VelmarcServer.Select(0);
    events.clear();
    Server().lineEdit()->selectAll();
    TypeText(Server().lineEdit(), QStringLiteral("be"));
    EXPECT_EQ(Server().currentText(), QStringLiteral("be"));
    EXPECT_EQ(panel.VelmarcServer.Text, std::string("be"));
    EXPECT_EQ(panel.VelmarcServer.ListIndex(), -1);
    EXPECT_EQ(events, Events{});
}

TEST_F(ComboMirrorTest, TypingInTheMiddleStaysThere) {
    AddServers();
    panel.VelmarcServer.Select(0);
    Server().lineEdit()->setCursorPosition(2);
    TypeText(Server().lineEdit(), QStringLiteral("XY"));
    EXPECT_EQ(panel.VelmarcServer.Text, std::string("alXYpha"));
    EXPECT_EQ(Server().lineEdit()->cursorPosition(), 4);
}

TEST_F(ComboMirrorTest, EnterIsTheKey13AndPicksNothing) {
    AddServers();
    Server().lineEdit()->selectAll();
    TypeText(Server().lineEdit(), QStringLiteral("beta"));
    ClickKey(&Server(), Qt::Key_Return);
    ClickKey(&Server(), Qt::Key_Enter);
    EXPECT_EQ(events, (Events{"key 13", "key 13"}));
    EXPECT_EQ(panel.VelmarcServer.ListIndex(), -1);
}

TEST_F(ComboMirrorTest, LeavingTheFieldPicksNothing) {
    AddServers();
    Server().lineEdit()->setFocus();
    Server().lineEdit()->selectAll();
    TypeText(Server().lineEdit(), QStringLiteral("beta"));
    Server().lineEdit()->clearFocus();
    EXPECT_EQ(events, Events{});
    EXPECT_EQ(panel.VelmarcServer.ListIndex(), -1);
}

TEST_F(ComboMirrorTest, ATextThatTheHandlerEmptiesIsEmptyOnTheScreen) {
    panel.VelmarcServer.KeyPress = [this](Long) { panel.VelmarcServer.Text = ""; };
    ClickKey(&Server(), Qt::Key_Return);
    EXPECT_EQ(Server().currentText(), QString());
}

TEST_F(ComboMirrorTest, TheWheelPicksOnlyWithTheFocus) {
    GoTo(5);
    QComboBox& box = Widget<QComboBox>(panel.VVLHeadset);
    panel.VVLHeadset.AddItem("one");
    panel.VVLHeadset.AddItem("two");
    panel.VVLHeadset.Select(0);
    const auto turn = [&box] {
        QWheelEvent wheel(QPointF(5, 5), box.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&box, &wheel);
    };
    // Qt gives a box the focus by the wheel where its policy says so.
    EXPECT_FALSE(box.focusPolicy() & Qt::WheelFocus & ~Qt::StrongFocus);
    box.clearFocus();
    turn();
    EXPECT_EQ(panel.VVLHeadset.ListIndex(), 0);
    box.setFocus();
    turn();
    EXPECT_EQ(panel.VVLHeadset.ListIndex(), 1);
}

TEST_F(ComboMirrorTest, AListBoxWithoutSelectionShowsNoEntry) {
    GoTo(5);
    QComboBox& box = Widget<QComboBox>(panel.VVLMicrophone);
    panel.VVLMicrophone.AddItem("one");
    EXPECT_EQ(box.currentIndex(), -1);
    EXPECT_FALSE(box.isEditable());
    panel.VVLMicrophone.Click = Note("click");
    Pick(box, 0);
    EXPECT_EQ(panel.VVLMicrophone.ListIndex(), 0);
    EXPECT_EQ(events, Events{"click"});
}

}  // namespace
}  // namespace orvelle::qt
