// A window: loaded once, shown, hidden and unloaded, with no event of its own but those of the user's acts.
#include "platform/controls/Form.h"

#include <gtest/gtest.h>

#include "platform/controls/Buttons.h"
#include "platform/controls/Label.h"

namespace orvelle {
namespace {

class FormTest : public testing::Test, public ControlObserver {
protected:
    FormTest() {
        ticket = form.Attach(*this);
        form.Load = [this] { happened += form.Visible ? "load while shown;" : "load;"; };
        form.Resize = [this] { happened += "resize " + std::to_string(form.WindowState()) + ";"; };
        form.QueryUnload = [this](Long& cancel, Long mode) {
            happened += "query " + std::to_string(mode) + ";";
            cancel = mode == Form::ControlMenu ? 1 : 0;
        };
        form.Unloading = [this] { happened += "unload;"; };
        form.Terminate = [this] { happened += form.Visible ? "terminate while shown;" : "terminate;"; };
    }

    Form form{"Form", "Title"};
    Ticket ticket;
    std::string happened;

private:
    void ControlChanged(Control& control, ControlProperty property) override {
        if (&control == &form && property == ControlProperty::Visible) happened += form.Visible ? "shown;" : "gone;";
        if (property == ControlProperty::Value) happened += "told " + control.Name + ";";
    }
};

TEST_F(FormTest, LoadsAtTheFirstShowAloneAndIsVisibleBehindIt) {
    EXPECT_FALSE(form.Visible);
    form.Show();
    form.Show();
    form.Hide();
    form.Show();
    EXPECT_EQ(happened, "load;shown;gone;shown;");
}

TEST_F(FormTest, ACancelledUnloadLeavesTheFormWhereItIs) {
    form.Show();
    happened.clear();
    form.Unload(Form::ControlMenu);
    EXPECT_EQ(happened, "query 0;");
    EXPECT_TRUE(form.IsLoaded());
    EXPECT_TRUE(form.Visible);
}

TEST_F(FormTest, AnUnloadAsksThenUnloadsThenTheFormIsGone) {
    form.Show();
    happened.clear();
    form.Unload();
    EXPECT_EQ(happened, "query 1;unload;gone;terminate;");
    EXPECT_FALSE(form.IsLoaded());
    form.Unload();
    EXPECT_EQ(happened, "query 1;unload;gone;terminate;");
}

TEST_F(FormTest, OnlyTheUsersActsResize) {
    form.Show();
    happened.clear();
    form.WindowState = Form::Minimised;
    form.WindowState = Form::Normal;
    form.Left = 10;
    form.Width = 3000;
    form.UserMove(30, 40);
    EXPECT_EQ(happened, "");
    EXPECT_EQ(form.Left(), 30);
    EXPECT_EQ(form.Top(), 40);
    form.UserState(Form::Maximised);
    form.UserResize();
    EXPECT_EQ(happened, "resize 2;resize 2;");
}

TEST_F(FormTest, AnObserverHearsOfAChangeBeforeTheControlsOwnEvent) {
    CheckBox box(form, "Box", nullptr, "");
    box.Click = [this] { happened += "click;"; };
    box.Value = 1;
    EXPECT_EQ(happened, "told Box;click;");
}

TEST_F(FormTest, AnObserverHearsNothingBehindItsTicket) {
    CheckBox box(form, "Box", nullptr, "");
    ticket.End();
    box.Value = 1;
    EXPECT_EQ(happened, "");
}

TEST_F(FormTest, MayGoBeforeItsObserversTicket) {
    {
        Form other("Other", "");
        ticket = other.Attach(*this);
        CheckBox box(other, "Box", nullptr, "");
        box.Value = 1;
    }
    EXPECT_EQ(happened, "told Box;");
}

TEST_F(FormTest, FindsItsControlsByName) {
    Frame frame(form, "Panels(0)");
    CheckBox box(form, "Box", &frame, "");
    EXPECT_EQ(form.Find("Box"), &box);
    EXPECT_EQ(form.Find("Panels(0)"), &frame);
    EXPECT_EQ(form.Find("Form"), nullptr);
    EXPECT_EQ(form.Controls().size(), 2U);
}

TEST_F(FormTest, AMenuPopsUpForAsLongAsItIsTold) {
    MenuEntry entry(form, "Entry", "Quit");
    Menu menu(form, "Menu", {&entry});
    form.PopupMenu(menu);
    EXPECT_EQ(form.PoppedMenu(), nullptr);
    form.Enabled = false;
    entry.Click = [this] { happened += "quit;"; };
    entry.UserClick();
    EXPECT_EQ(happened, "quit;");
}

}  // namespace
}  // namespace orvelle
