// The two tables and the tree.
#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeWidget>
#include <QWheelEvent>
#include <ctime>

#include "tests/qt/forms/PlausiblePanel.h"
#include "tests/qt/forms/ShownPanel.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

using Events = std::vector<std::string>;

class ItemMirrorsTest : public ShownPanel {
protected:
    ItemMirrorsTest() {
        GoTo(4);
        panel.ListJoyToKey.ItemClick = [this](Long row) { events.push_back("row " + std::to_string(row)); };
    }

    QTreeView& Table() { return Widget<QTreeView>(panel.ListJoyToKey); }
    std::string Cell(int row, int column) {
        return Table().model()->index(row, column).data().toString().toStdString();
    }
    void AddRows(int count) {
        for (int row = 1; row <= count; ++row) panel.ListJoyToKey.AddRow("input " + std::to_string(row));
        QCoreApplication::processEvents();
    }
    void ClickRow(int row) {
        const QRect place = Table().visualRect(Table().model()->index(row - 1, 1));
        ClickMouse(Table().viewport(), Qt::LeftButton, {}, place.center());
    }
    // The processor's time for that many further rows and a change of each, in ticks of its clock.
    double CostOfRows(int count) {
        const Long before = panel.ListJoyToKey.Count();
        const Long after = before + count;
        const std::clock_t start = std::clock();
        AddRows(count);
        for (Long row = before + 1; row <= after; ++row) {
            panel.ListJoyToKey.SetSubItem(row, 1, "Ctrl");
            if (row % 1000 == 0) QCoreApplication::processEvents();
        }
        panel.ListJoyToKey.SelectRow(after);
        QCoreApplication::processEvents();
        const std::clock_t end = std::clock();
        EXPECT_EQ(Cell(after - 1, 1), "Ctrl");
        return static_cast<double>(end - start);
    }
    QModelIndexList SelectedRows() { return Table().selectionModel()->selectedRows(); }
};

TEST_F(ItemMirrorsTest, AnEmptyTableShowsItsHeadings) {
    const QAbstractItemModel* model = Table().model();
    ASSERT_EQ(model->columnCount(), 3);
    EXPECT_EQ(model->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Push/Toggle"));
    EXPECT_TRUE(Table().header()->isVisible());
}

TEST_F(ItemMirrorsTest, RowsComeChangeAndGo) {
    QAbstractItemModelTester tester(Table().model());
    AddRows(3);
    panel.ListJoyToKey.SetSubItem(2, 1, "Ctrl");
    panel.ListJoyToKey.SetSubItem(2, 4, "DOWN");
    EXPECT_EQ(Table().model()->rowCount(), 3);
    EXPECT_EQ(Cell(1, 0), "input 2");
    EXPECT_EQ(Cell(1, 1), "Ctrl");
    panel.ListJoyToKey.RemoveRow(1);
    EXPECT_EQ(Table().model()->rowCount(), 2);
    EXPECT_EQ(Cell(0, 1), "Ctrl");
    panel.ListJoyToKey.RemoveRow(2);
    panel.ListJoyToKey.RemoveRow(1);
    EXPECT_EQ(Table().model()->rowCount(), 0);
}

TEST_F(ItemMirrorsTest, AClickOnARowIsOneItemClickAndAgainAnother) {
    AddRows(3);
    ClickRow(2);
    EXPECT_EQ(panel.ListJoyToKey.SelectedRow(), 2);
    ClickRow(2);
    ClickRow(3);
    EXPECT_EQ(events, (Events{"row 2", "row 2", "row 3"}));
    ASSERT_EQ(SelectedRows().size(), 1);
    EXPECT_EQ(SelectedRows().first().row(), 2);
}

TEST_F(ItemMirrorsTest, TheArrowKeysClickRows) {
    AddRows(3);
    ClickRow(1);
    ClickKey(&Table(), Qt::Key_Down);
    EXPECT_EQ(events, (Events{"row 1", "row 2"}));
    ClickRow(2);
    EXPECT_EQ(events, (Events{"row 1", "row 2", "row 2"}));
}

TEST_F(ItemMirrorsTest, ComingToATableByTheTabKeyClicksNothing) {
    AddRows(2);
    Table().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(events, Events{});
    EXPECT_EQ(panel.ListJoyToKey.SelectedRow(), 0);
}

TEST_F(ItemMirrorsTest, TheProgramsSelectionShowsAndClicksNothing) {
    AddRows(200);
    panel.ListJoyToKey.SelectRow(190);
    ASSERT_EQ(SelectedRows().size(), 1);
    EXPECT_EQ(SelectedRows().first().row(), 189);
    EXPECT_TRUE(Table().viewport()->rect().intersects(Table().visualRect(SelectedRows().first())));
    EXPECT_EQ(events, Events{});
}

TEST_F(ItemMirrorsTest, ASelectedRowThatGoesLeavesNothingSelected) {
    AddRows(3);
    ClickRow(2);
    events.clear();
    panel.ListJoyToKey.RemoveRow(2);
    EXPECT_TRUE(SelectedRows().isEmpty());
    EXPECT_EQ(events, Events{});
}

TEST_F(ItemMirrorsTest, ARowThatGoesAboveMovesTheSelectionAlong) {
    AddRows(3);
    ClickRow(3);
    panel.ListJoyToKey.RemoveRow(1);
    ASSERT_EQ(SelectedRows().size(), 1);
    EXPECT_EQ(SelectedRows().first().row(), 1);
    EXPECT_EQ(events, Events{"row 3"});
}

TEST_F(ItemMirrorsTest, ADisabledTableTakesNoClick) {
    AddRows(2);
    panel.Panels(4).Enabled = false;
    ClickRow(1);
    EXPECT_EQ(events, Events{});
    EXPECT_EQ(panel.ListJoyToKey.SelectedRow(), 0);
}

TEST_F(ItemMirrorsTest, ADisabledTableCanBeReadToItsEnd) {
    AddRows(200);
    panel.Panels(4).Enabled = false;
    QWheelEvent wheel(QPointF(5, 5), Table().mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Table().viewport(), &wheel);
    EXPECT_GT(Table().verticalScrollBar()->value(), 0);
    EXPECT_TRUE(SelectedRows().isEmpty());
}

// An event costs what its row costs: nine times the rows cost nine times as much. Were all rows copied or measured for
// each, those behind the first ten thousand would cost a hundred times as much. Counted is the processor's time, which
// a machine that is busy elsewhere does not lengthen.
TEST_F(ItemMirrorsTest, AHundredThousandRowsAreNoBurden) {
    constexpr int Rows = 10'000;
    constexpr double Bound = 30;
    const double few = CostOfRows(Rows);
    const double many = CostOfRows(9 * Rows);
    EXPECT_LT(many, Bound * few);
    RecordProperty("Relation", std::to_string(many / few));
}

class TreeTest : public ShownPanel {
protected:
    TreeTest() {
        panel.twCategory.NodeClick = [this](TreeNode& node) { events.push_back(node.Text); };
        FillPlausibly(panel);
        QCoreApplication::processEvents();
    }

    QTreeWidget& Tree() { return Widget<QTreeWidget>(panel.twCategory); }
    void ClickNode(QTreeWidgetItem* item) {
        ClickMouse(Tree().viewport(), Qt::LeftButton, {}, Tree().visualItemRect(item).center());
    }
};

TEST_F(TreeTest, TheNodesStandInTheirOrderAndTheTopmostAreOpen) {
    ASSERT_EQ(Tree().topLevelItemCount(), 3);
    EXPECT_EQ(Tree().topLevelItem(0)->text(0), QStringLiteral("Config"));
    EXPECT_TRUE(Tree().topLevelItem(0)->isExpanded());
    EXPECT_TRUE(Tree().topLevelItem(1)->isExpanded());
    EXPECT_FALSE(Tree().topLevelItem(0)->child(1)->isExpanded());
    EXPECT_EQ(Tree().topLevelItem(0)->child(1)->child(0)->text(0), QStringLiteral("Extra"));
    EXPECT_EQ(events, Events{});
}

TEST_F(TreeTest, AClickIsOneClickAndAgainAnother) {
    ClickNode(Tree().topLevelItem(0)->child(0));
    ClickNode(Tree().topLevelItem(0)->child(0));
    EXPECT_EQ(events, (Events{"Velmarc", "Velmarc"}));
}

TEST_F(TreeTest, TheArrowKeysClickNodes) {
    Tree().setFocus();
    ClickKey(&Tree(), Qt::Key_Down);
    ClickKey(&Tree(), Qt::Key_Down);
    EXPECT_EQ(events, (Events{"Velmarc", "Kestrine"}));
}

TEST_F(TreeTest, AClickBesideTheNodesLeavesTheMark) {
    Tree().setCurrentItem(Tree().topLevelItem(0)->child(0));
    events.clear();
    ClickMouse(Tree().viewport(), Qt::LeftButton, {}, Tree().viewport()->rect().bottomLeft() - QPoint(-5, 5));
    EXPECT_EQ(Tree().selectedItems(), QList{Tree().topLevelItem(0)->child(0)});
    EXPECT_TRUE(events.empty());
}

TEST_F(TreeTest, ExpandingClicksNothing) {
    Tree().setFocus();
    ClickKey(&Tree(), Qt::Key_Left);
    ClickKey(&Tree(), Qt::Key_Right);
    EXPECT_EQ(events, Events{});
}

TEST_F(TreeTest, ATreeThatIsEmptiedIsEmpty) {
    panel.twCategory.Clear();
    EXPECT_EQ(Tree().topLevelItemCount(), 0);
    EXPECT_EQ(events, Events{});
}

}  // namespace
}  // namespace orvelle::qt
