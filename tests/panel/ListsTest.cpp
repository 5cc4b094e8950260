// Lists of rows, the tree, status bars and timers, as the logic uses them.
#include <gtest/gtest.h>

#include <string>

#include "platform/RuntimeError.h"
#include "platform/controls/Form.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListView.h"
#include "platform/controls/StatusBar.h"
#include "platform/controls/Timer.h"
#include "platform/controls/TreeView.h"

namespace orvelle {
namespace {

class ListsTest : public testing::Test {
protected:
    ListsTest() {
        list.ItemClick = [this](Long row) { raised += "item " + std::to_string(row) + ";"; };
        for (const char* text : {"a", "b", "c"}) list.AddRow(text);
    }

    Form form{"Form", ""};
    Frame frame{form, "Panels(4)"};
    ListView list{form, "List", &frame, {"First", "Second"}};
    std::string raised;
};

TEST_F(ListsTest, RowsCountFromOneAndHaveFourSubItems) {
    EXPECT_EQ(list.Count(), 3);
    list.SetSubItem(2, 4, "DOWN");
    EXPECT_EQ(list.Row(2).Text, "b");
    EXPECT_EQ(list.SubItem(2, 4), "DOWN");
    EXPECT_THROW(list.Row(0), RuntimeError);
    EXPECT_THROW(list.Row(4), RuntimeError);
    EXPECT_THROW(list.SubItem(1, 5), RuntimeError);
}

TEST_F(ListsTest, TheUsersClickSelectsAndClicksTheProgramsSelectionIsSilent) {
    EXPECT_EQ(list.SelectedRow(), 0);
    list.SelectRow(1);
    EXPECT_EQ(raised, "");
    list.UserClickRow(2);
    list.UserClickRow(2);
    EXPECT_EQ(raised, "item 2;item 2;");
    EXPECT_EQ(list.SelectedRow(), 2);
    list.UserClickRow(4);
    list.UserClickRow(0);
    EXPECT_EQ(list.SelectedRow(), 2);
}

TEST_F(ListsTest, RemovingTheSelectedRowLeavesNoneSelected) {
    list.SelectRow(2);
    list.RemoveRow(2);
    EXPECT_EQ(list.SelectedRow(), 0);
    EXPECT_EQ(list.Row(2).Text, "c");
    EXPECT_EQ(raised, "");
}

TEST_F(ListsTest, ASelectedRowMovesUpWithTheRowsBehindARemovedOne) {
    list.SelectRow(3);
    list.RemoveRow(1);
    EXPECT_EQ(list.SelectedRow(), 2);
    list.RemoveRow(1);
    EXPECT_EQ(list.SelectedRow(), 1);
    EXPECT_EQ(list.Row(1).Text, "c");
}

TEST_F(ListsTest, ARowOfADisabledPanelCannotBeClicked) {
    frame.Enabled = false;
    list.UserClickRow(1);
    EXPECT_EQ(list.SelectedRow(), 0);
    EXPECT_EQ(raised, "");
}

TEST_F(ListsTest, ATreeKeepsItsNodesInOrderAndClicksAnyOfThem) {
    TreeView tree(form, "Tree");
    tree.NodeClick = [this](TreeNode& node) { raised += node.Text + " " + node.Tag + ";"; };
    TreeNode& top = tree.AddNode(nullptr, "Top", "0");
    TreeNode& child = tree.AddNode(&top, "Child", "1");
    tree.AddNode(&child, "Below", "2");
    EXPECT_FALSE(top.Expanded);
    tree.UserClick(*tree.Find("Below"));
    tree.UserClick(top);
    EXPECT_EQ(raised, "Below 2;Top 0;");
    EXPECT_EQ(tree.Find("Elsewhere"), nullptr);
    EXPECT_EQ(child.Parent, &top);
    tree.Clear();
    EXPECT_TRUE(tree.Nodes().empty());
}

TEST_F(ListsTest, AStatusBarHasThePanelsOfItsDesign) {
    StatusBar bar(form, "Bar", nullptr, {{"Not Connected", "Hover"}, {"", ""}});
    bar.SetPanelText(2, "IP");
    EXPECT_EQ(bar.PanelText(1), "Not Connected");
    EXPECT_EQ(bar.PanelText(2), "IP");
    EXPECT_THROW(bar.SetPanelText(3, ""), RuntimeError);
    EXPECT_THROW(bar.SetPanelText(0, ""), RuntimeError);
}

TEST_F(ListsTest, ATimerIsOffAtFirst) {
    const Timer timer(form, "Timer", 1000);
    EXPECT_FALSE(timer.Enabled);
    EXPECT_EQ(timer.Interval, 1000);
}

}  // namespace
}  // namespace orvelle
