// The parameters of a record: names, late marks and the writes of other parties.
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTableWidget>
#include <QTextDocumentFragment>
#include <stdexcept>

#include "deck/fields/LateWrites.h"
#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

enum Column { Late, Number, Meaning, Value, Writer };
constexpr int FirstText = 28;  // the row of text 7

class DeckParameters : public DeckRig {
protected:
    DeckParameters() {
        ConnectAll();
        TurnTo(table);
    }

    Long CreateOwn(const char* role) {
        const Long id = tessaly.CreateInterface("VOICE", role);
        tessaly.CloseInterface();
        Settle();
        events.clear();
        return id;
    }
    void PanelWrites(Long id, Long index, Long value) {
        tessaly.OpenInterface(id);
        tessaly.SetParam(index, value);
        tessaly.CloseInterface();
        Settle();
    }
    QString Cell(int row, Column column) { return table.item(row, column)->text(); }
    QLineEdit& BeginToEdit(int row, const QString& text) {
        table.scrollToItem(table.item(row, Value));
        table.editItem(table.item(row, Value));
        auto* editor = table.findChild<QLineEdit*>();
        if (!editor) throw std::logic_error("no editor");
        editor->selectAll();
        TypeText(editor, text);
        if (text.isEmpty()) ClickKey(editor, Qt::Key_Delete);
        return *editor;
    }
    void Edit(int row, const QString& text) {
        ClickKey(&BeginToEdit(row, text), Qt::Key_Return);
        Settle();
    }

    QTableWidget& table = At<QTableWidget>("Parameters");
};

TEST_F(DeckParameters, TheyBearTheirNames) {
    EXPECT_EQ(Cell(13, Number), "13");
    EXPECT_EQ(Cell(13, Meaning), "COM1 not received");
    EXPECT_EQ(Cell(FirstText, Number), "T7");
    EXPECT_EQ(Cell(FirstText, Meaning), "COM1 address");
}

TEST_F(DeckParameters, ThePanelsOwnVoiceRecordIsShownFirst) {
    CreateOwn("RWCom1");
    const Long id = CreateOwn("VVL");
    EXPECT_EQ(At<QComboBox>("ParameterRecord").currentText(), "2  VVL of this panel");
    PanelWrites(id, 7, 2);
    EXPECT_EQ(Cell(7, Value), "2");
    EXPECT_EQ(Cell(7, Meaning), "COM1 state: in the room");
    EXPECT_EQ(Cell(7, Writer), "panel");
    EXPECT_EQ(Cell(8, Value), "");
}

TEST_F(DeckParameters, TheUsersPickStaysUntilItsRecordGoes) {
    CreateOwn("VVL");
    const Long other = setUp.NetworkLink.Claim("COCKPIT2", "VVL", VoiceRecordType);
    Settle();
    Pick("ParameterRecord", 1);
    PanelWrites(1, 2, 1);
    EXPECT_EQ(At<QComboBox>("ParameterRecord").currentText(), "2  VVL of COCKPIT2");
    EXPECT_EQ(Cell(2, Value), "");
    setUp.NetworkLink.DropClaim(other);
    Settle();
    EXPECT_EQ(At<QComboBox>("ParameterRecord").currentText(), "1  VVL of this panel");
    EXPECT_EQ(Cell(2, Value), "1");
}

TEST_F(DeckParameters, EditingANumberIsAnotherPartysWrite) {
    const Long id = CreateOwn("VVL");
    Edit(13, "1");
    EXPECT_EQ(TakeEvents(), Events({"parameter changed 1/13"}));
    EXPECT_EQ(setUp.NetworkLink.Records().at(id).Parameters.at(13).Content, 1);
    EXPECT_EQ(Cell(13, Value), "1");
    EXPECT_EQ(Cell(13, Writer), "other");
}

TEST_F(DeckParameters, EditingATextIsAnotherPartysWrite) {
    const Long id = CreateOwn("VVL");
    Edit(FirstText + 2, "voice.example.net/private");
    EXPECT_EQ(TakeEvents(), Events({"parameter changed 1/9"}));
    EXPECT_EQ(setUp.NetworkLink.Records().at(id).Texts.at(9).Content, "voice.example.net/private");
    Edit(FirstText + 2, "");
    EXPECT_EQ(setUp.NetworkLink.Records().at(id).Texts.at(9).Content, "");
}

TEST_F(DeckParameters, WhatIsNoNumberIsToldAndNotWritten) {
    CreateOwn("VVL");
    Edit(13, "1.5");
    EXPECT_EQ(TextOf("ParameterNote"), "No whole number of 32 bits: \"1.5\"");
    Edit(13, "2147483648");
    EXPECT_EQ(TextOf("ParameterNote"), "No whole number of 32 bits: \"2147483648\"");
    EXPECT_EQ(TakeEvents(), Events({}));
    EXPECT_EQ(Cell(13, Value), "");
    Edit(13, "-2147483648");
    EXPECT_EQ(Cell(13, Value), "-2147483648");
}

TEST_F(DeckParameters, AWriteWithoutTheLinkIsTold) {
    CreateOwn("VVL");
    setUp.NetworkLink.SetLink(LinkState::Down);
    Settle();
    TakeEvents();
    Edit(13, "1");
    EXPECT_EQ(TextOf("ParameterNote"), "Not written, as the network link is down");
    EXPECT_EQ(TakeEvents(), Events({}));
    EXPECT_EQ(Cell(13, Value), "");
}

TEST_F(DeckParameters, AnEditThatChangesNothingIsNoWrite) {
    const Long id = CreateOwn("VVL");
    PanelWrites(id, 13, 1);
    Edit(13, "1");
    EXPECT_EQ(TakeEvents(), Events({}));
}

TEST_F(DeckParameters, WhatIsBeingTypedOutlivesWhatOthersWrite) {
    const Long id = CreateOwn("VVL");
    auto& editor = BeginToEdit(13, "12");
    PanelWrites(id, 13, 7);
    setUp.NetworkLink.SetCallsign("ORV124");
    Settle();
    EXPECT_EQ(editor.text(), "12");
    TypeText(&editor, "3");
    ClickKey(&editor, Qt::Key_Return);
    Settle();
    EXPECT_EQ(Cell(13, Value), "123");
}

TEST_F(DeckParameters, AnEditorInWhichNothingWasTypedFollows) {
    const Long id = CreateOwn("VVL");
    table.editItem(table.item(13, Value));
    auto* editor = table.findChild<QLineEdit*>();
    ASSERT_TRUE(editor);
    PanelWrites(id, 13, 7);
    EXPECT_EQ(editor->text(), "7");
}

TEST_F(DeckParameters, TheOpenListOfRecordsKeepsItsMarkWhileOthersWrite) {
    const Long id = CreateOwn("VVL");
    setUp.NetworkLink.Claim("COCKPIT2", "VVL", VoiceRecordType);
    Settle();
    auto& box = At<QComboBox>("ParameterRecord");
    box.showPopup();
    ClickKey(box.view(), Qt::Key_Down);
    ASSERT_EQ(box.view()->currentIndex().row(), 1);
    PanelWrites(id, 13, 7);
    EXPECT_EQ(box.view()->currentIndex().row(), 1);
    ClickKey(box.view(), Qt::Key_Return);
    Settle();
    EXPECT_EQ(box.currentText(), "2  VVL of COCKPIT2");
}

TEST_F(DeckParameters, AToolTipShowsATextToTheLetter) {
    CreateOwn("VVL");
    Edit(FirstText, "a&b <i>c</i>");
    const QString tip = table.item(FirstText, Value)->toolTip();
    EXPECT_TRUE(Qt::mightBeRichText(tip));
    EXPECT_EQ(QTextDocumentFragment::fromHtml(tip).toPlainText(), "a&b <i>c</i>");
    EXPECT_EQ(table.item(FirstText + 1, Value)->toolTip(), "");
}

TEST_F(DeckParameters, WithoutARecordNothingCanBeEdited) {
    EXPECT_EQ(At<QComboBox>("ParameterRecord").count(), 0);
    EXPECT_FALSE(table.item(13, Value)->flags() & Qt::ItemIsEditable);
}

TEST_F(DeckParameters, WhatChangedLatelyIsMarked) {
    const Long id = CreateOwn("VVL");
    PanelWrites(id, 2, 1);
    EXPECT_EQ(Cell(2, Late), "●");
    EXPECT_TRUE(table.item(2, Value)->font().bold());
    EXPECT_EQ(Cell(3, Late), "");
    EXPECT_FALSE(table.item(3, Value)->font().bold());
}

TEST(LateWrites, AFlurryLastsUntilAPauseAndStaysUntilTheNext) {
    constexpr std::int64_t Start = 50'000;
    deck::LateWrites late;
    late.Forget(10);
    EXPECT_FALSE(late.IsLate(10));
    late.Count(11, Start);
    late.Count(13, Start + deck::LateWrites::Pause - 1);
    EXPECT_FALSE(late.IsLate(10));
    EXPECT_TRUE(late.IsLate(11));
    EXPECT_TRUE(late.IsLate(13));
    late.Count(13, Start + 10 * deck::LateWrites::Pause);
    EXPECT_TRUE(late.IsLate(11));
    late.Count(14, Start + 11 * deck::LateWrites::Pause);
    EXPECT_FALSE(late.IsLate(13));
    EXPECT_TRUE(late.IsLate(14));
}

}  // namespace
}  // namespace orvelle
