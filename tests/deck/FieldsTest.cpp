// What all fields of the deck have alike: the wheel and Escape.
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QWheelEvent>

#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

class DeckFields : public DeckRig {
protected:
    // One notch down.
    static void TurnWheelOver(QWidget& widget) {
        const QPointF place = QRectF(widget.rect()).center();
        QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &event);
        Settle();
    }
};

TEST_F(DeckFields, TheWheelLeavesAChoiceAloneUntilItHasTheFocus) {
    auto& box = At<QComboBox>("SoftwareCOM1");
    TurnWheelOver(box);
    EXPECT_EQ(box.currentIndex(), 0);
    EXPECT_FALSE(box.hasFocus());
    box.setFocus();
    TurnWheelOver(box);
    EXPECT_EQ(setUp.NetworkLink.Session().Voice[0].Software, 1);
}

TEST_F(DeckFields, TheWheelLeavesANumberAloneUntilItHasTheFocus) {
    auto& box = At<QSpinBox>("JoinDelay");
    TurnTo(box);
    box.clearFocus();
    setUp.VVL.SetJoinDelay(0);
    box.setValue(500);
    TurnWheelOver(box);
    EXPECT_EQ(box.value(), 500);
    EXPECT_FALSE(box.hasFocus());
    box.setFocus();
    TurnWheelOver(box);
    EXPECT_EQ(setUp.VVL.JoinDelay(), 400);
}

TEST_F(DeckFields, EscapeTakesBackATextThatIsNotAppliedYet) {
    ConnectAll();
    Type("Callsign", "ORV123");
    TakeEvents();
    auto& edit = At<QLineEdit>("Callsign");
    TypeText(&edit, "45");
    ClickKey(&edit, Qt::Key_Escape);
    EXPECT_EQ(edit.text(), "ORV123");
    ClickKey(&edit, Qt::Key_Return);
    Settle();
    EXPECT_EQ(TakeEvents(), Events({}));
    EXPECT_EQ(setUp.NetworkLink.Session().Callsign, "ORV123");
}

TEST_F(DeckFields, EscapeGoesBackToWhatHoldsByNow) {
    ConnectAll();
    auto& edit = At<QLineEdit>("Callsign");
    edit.setFocus();
    TypeText(&edit, "mine");
    setUp.NetworkLink.SetCallsign("THEIRS");
    Settle();
    EXPECT_EQ(edit.text(), "mine");
    ClickKey(&edit, Qt::Key_Escape);
    EXPECT_EQ(edit.text(), "THEIRS");
}

TEST_F(DeckFields, EscapeTakesBackANumberThatIsNotAppliedYet) {
    auto& box = At<QSpinBox>("JoinDelay");
    TurnTo(box);
    box.setFocus();
    box.selectAll();
    TypeText(&box, "250");
    ClickKey(&box, Qt::Key_Escape);
    EXPECT_EQ(box.text(), "0 ms");
    ClickKey(&box, Qt::Key_Return);
    EXPECT_EQ(setUp.VVL.JoinDelay(), 0);
}

TEST_F(DeckFields, BytesThatAreNoUtf8AreShownAsLatin1AndStayUntilTheyAreEdited) {
    ConnectAll();
    const std::string old = "M\xfcnchen";
    setUp.NetworkLink.SetCallsign(old);
    setUp.SimulatorLink.SeeServer(old);
    setUp.NetworkLink.Claim(old, "VVL", VoiceRecordType);
    Settle();
    auto& edit = At<QLineEdit>("Callsign");
    EXPECT_EQ(edit.text(), "München");
    EXPECT_EQ(TextOf("SimulatorServersSeen"), "München");
    auto& records = At<QTableWidget>("Records");
    EXPECT_FALSE(records.findItems("München", Qt::MatchExactly).isEmpty());

    ClickMouse(&edit, Qt::LeftButton);
    ClickKey(&edit, Qt::Key_Return);
    Settle();
    EXPECT_EQ(setUp.NetworkLink.Session().Callsign, old);
    edit.selectAll();
    edit.insert("Zürich");
    ClickKey(&edit, Qt::Key_Return);
    Settle();
    EXPECT_EQ(setUp.NetworkLink.Session().Callsign, "Z\xc3\xbcrich");
}

}  // namespace
}  // namespace orvelle
