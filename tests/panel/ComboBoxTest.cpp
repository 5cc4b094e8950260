// The boxes of servers and devices: a selection raises its click whoever makes it, and a typed text selects nothing.
#include "platform/controls/ComboBox.h"

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "platform/controls/Form.h"
#include "platform/controls/Label.h"

namespace orvelle {
namespace {

class ComboBoxTest : public testing::Test {
protected:
    ComboBoxTest() {
        box.Click = [this] { raised += box.Text() + " " + std::to_string(box.ListIndex()) + ";"; };
        box.KeyPress = [this](Long code) { raised += "key " + std::to_string(code) + ";"; };
    }
    void Fill() {
        box.AddItem("a");
        box.AddItem("b");
    }

    Form form{"Form", ""};
    Frame frame{form, "Panels(0)"};
    ComboBox box{form, "Box", &frame, ComboBox::Kind::Editable, "localhost"};
    std::string raised;
};

TEST_F(ComboBoxTest, AddingEntriesSelectsNothingAndKeepsTheText) {
    Fill();
    EXPECT_EQ(box.ListCount(), 2);
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.Text(), "localhost");
    EXPECT_EQ(raised, "");
}

TEST_F(ComboBoxTest, ASelectionByTheProgramPutsTheTextInAndClicks) {
    Fill();
    box.Select(1);
    EXPECT_EQ(raised, "b 1;");
    EXPECT_EQ(box.SelectedEntry(), "b");
}

TEST_F(ComboBoxTest, PickingTheSelectedEntryClicksAgain) {
    Fill();
    box.UserPick(0);
    box.UserPick(0);
    EXPECT_EQ(raised, "a 0;a 0;");
}

TEST_F(ComboBoxTest, ATypedTextSelectsNothingAndDoesNotClick) {
    Fill();
    box.Select(0);
    raised.clear();
    box.UserType("b");
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(raised, "");
}

TEST_F(ComboBoxTest, EmptyingTheListLeavesTheText) {
    Fill();
    box.Select(1);
    raised.clear();
    box.Clear();
    EXPECT_EQ(box.ListCount(), 0);
    EXPECT_EQ(box.ListIndex(), -1);
    EXPECT_EQ(box.Text(), "b");
    EXPECT_EQ(raised, "");
}

TEST_F(ComboBoxTest, FindsTheFirstEntryThatIsEqualToTheLetter) {
    Fill();
    box.AddItem("b");
    EXPECT_EQ(box.IndexOf("b"), 1);
    EXPECT_EQ(box.IndexOf("B"), -1);
    EXPECT_EQ(box.IndexOf(""), -1);
}

TEST_F(ComboBoxTest, AnEntryThatIsNotThereIsASubscriptError) {
    Fill();
    EXPECT_THROW(box.Select(2), RuntimeError);
    EXPECT_THROW(box.Select(-2), RuntimeError);
    EXPECT_EQ(box.ListIndex(), -1);
}

TEST_F(ComboBoxTest, NothingReachesADisabledBoxOrOneOnADisabledPanel) {
    Fill();
    for (Control* closed : {static_cast<Control*>(&box), static_cast<Control*>(&frame)}) {
        closed->Enabled = false;
        box.UserPick(1);
        box.UserType("x");
        box.UserKey(EnterKey);
        EXPECT_EQ(box.Text(), "localhost");
        EXPECT_EQ(raised, "");
        closed->Enabled = true;
    }
    box.UserKey(EnterKey);
    EXPECT_EQ(raised, "key 13;");
}

TEST_F(ComboBoxTest, ABoxWithoutEditFieldTakesNoTypedText) {
    ComboBox list(form, "List", &frame, ComboBox::Kind::List);
    list.AddItem("None");
    list.UserType("None");
    EXPECT_EQ(list.Text(), "");
    list.UserPick(0);
    EXPECT_EQ(list.Text(), "None");
}

}  // namespace
}  // namespace orvelle
