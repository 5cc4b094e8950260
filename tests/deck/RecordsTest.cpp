// The interface records: what the table shows, and another computer's claims.
#include <QCheckBox>
#include <QTableWidget>

#include "tests/deck/DeckRig.h"

namespace orvelle {
namespace {

class DeckRecords : public DeckRig {
protected:
    DeckRecords() { ConnectAll(); }

    void CreateOwn(const char* role) {
        tessaly.CreateInterface("VOICE", role);
        tessaly.CloseInterface();
        Settle();
    }
    QStringList Row(int row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column) cells << table.item(row, column)->text();
        return cells;
    }

    QTableWidget& table = At<QTableWidget>("Records");
};

TEST_F(DeckRecords, EachRoleIsClaimedAndDropped) {
    Long id = 1;
    for (const char* button : {"ClaimRWCom1", "ClaimRWCom2", "ClaimTSCom1", "ClaimTSCom2", "ClaimVVL"}) {
        Click(button);
        EXPECT_EQ(TakeEvents(), Events({"record appeared " + std::to_string(id)}));
        EXPECT_EQ(setUp.NetworkLink.Records().at(id).Role, std::string(button).substr(std::string("Claim").size()));
        EXPECT_TRUE(At<QCheckBox>(button).isChecked());
        ++id;
    }
    Click("ClaimTSCom1");
    EXPECT_EQ(TakeEvents(), Events({"record removed 3"}));
    EXPECT_FALSE(At<QCheckBox>("ClaimTSCom1").isChecked());
    EXPECT_EQ(table.rowCount(), 4);
}

TEST_F(DeckRecords, TheTableTellsOwnersAndParameters) {
    CreateOwn("VVL");
    tessaly.OpenInterface(1);
    tessaly.SetParam(0, 3);
    tessaly.SetParamText(7, "server/room");
    tessaly.CloseInterface();
    Click("ClaimRWCom1");
    EXPECT_EQ(Row(0), QStringList({"1", "VOICE", "VVL", "this panel", "0=3  7=\"server/room\""}));
    EXPECT_EQ(Row(1), QStringList({"2", "VOICE", "RWCom1", "COCKPIT2", ""}));
}

TEST_F(DeckRecords, EachComputerHasItsOwnClaims) {
    Click("ClaimVVL");
    Type("OtherComputer", "COCKPIT3");
    EXPECT_FALSE(At<QCheckBox>("ClaimVVL").isChecked());
    Click("ClaimVVL");
    EXPECT_EQ(Row(1).at(3), "COCKPIT3");
    Type("OtherComputer", "COCKPIT2");
    Click("ClaimVVL");
    EXPECT_EQ(table.rowCount(), 1);
    EXPECT_EQ(Row(0).at(3), "COCKPIT3");
}

TEST_F(DeckRecords, ASelectedRecordIsDroppedByItsOwner) {
    CreateOwn("RWCom1");
    Click("ClaimVVL");
    TakeEvents();
    Click("DropRecord");
    EXPECT_EQ(TakeEvents(), Events({})) << "none is selected";
    table.selectRow(1);
    Click("DropRecord");
    EXPECT_EQ(TakeEvents(), Events({"record removed 2"}));
    EXPECT_TRUE(At<QWidget>("DropRecord").hasFocus());
    table.selectRow(0);
    Click("DropRecord");
    EXPECT_EQ(TakeEvents(), Events({})) << "it is the panel's own";
}

TEST_F(DeckRecords, AChangeOfTheSelectedRecordIsAnnounced) {
    CreateOwn("VVL");
    TakeEvents();
    table.selectRow(0);
    Click("AnnounceRecord");
    EXPECT_EQ(TakeEvents(), Events({"record changed 1"}));
}

TEST_F(DeckRecords, TheSelectionStaysWithItsRecord) {
    Click("ClaimRWCom1");
    Click("ClaimRWCom2");
    Click("ClaimVVL");
    table.selectRow(2);
    Click("ClaimRWCom1");
    ASSERT_FALSE(table.selectedItems().isEmpty());
    EXPECT_EQ(table.selectedItems().first()->text(), "3");
    Click("ClaimVVL");
    EXPECT_TRUE(table.selectedItems().isEmpty());
    TakeEvents();
    Click("AnnounceRecord");
    EXPECT_EQ(TakeEvents(), Events({}));
}

}  // namespace
}  // namespace orvelle
