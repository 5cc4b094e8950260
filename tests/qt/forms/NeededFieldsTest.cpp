// The marks on what an enabled driver still needs.
#include <QAction>
#include <QLineEdit>
#include <QPushButton>

#include "tests/qt/forms/ShownPanel.h"

namespace orvelle::qt {
namespace {

class NeededFieldsTest : public ShownPanel {
protected:
    NeededFieldsTest() {
        for (TextBox* key : {&panel.RWPTTKeyDisplay, &panel.TSPTTKeyDisplay}) key->Text = "<Not Hotkey>";
    }

    // What the mark on the control's field says; "" without one.
    QString Mark(const Control& control) {
        QStringList tips;
        for (const QAction* action : Widget<QLineEdit>(control).actions()) tips.append(action->toolTip());
        return tips.join('|');
    }
};

TEST_F(NeededFieldsTest, NothingIsNeededWhileNoDriverIsEnabled) {
    for (const TextBox* field : {&panel.RWPTTKeyDisplay, &panel.RWPath, &panel.TSPTTKeyDisplay, &panel.TSPath})
        EXPECT_EQ(Mark(*field), "") << field->Name;
}

TEST_F(NeededFieldsTest, OfTheEnabledDriverAreMarkedAndKeepTheirText) {
    panel.RWEnable.UserCheck(1);
    EXPECT_EQ(Mark(panel.RWPTTKeyDisplay),
              "The talk key of RogerWilco is not set, and push-to-talk ends the panel without it. It must be set after "
              "each start.");
    EXPECT_EQ(Mark(panel.RWPath), "RogerWilco can't be started, as the path to its program is empty.");
    EXPECT_EQ(Widget<QLineEdit>(panel.RWPTTKeyDisplay).text(), "<Not Hotkey>");
    EXPECT_EQ(Mark(panel.TSPTTKeyDisplay) + Mark(panel.TSPath), "");
    panel.TSEnable.UserCheck(1);
    EXPECT_EQ(Mark(panel.TSPTTKeyDisplay),
              "The talk key of TeamSpeak is not set, and push-to-talk ends the panel without it. It must be set after "
              "each start.");
    EXPECT_EQ(Mark(panel.TSPath), "TeamSpeak can't be started, as the path to its program is empty.");
    panel.RWEnable.UserCheck(0);
    EXPECT_EQ(Mark(panel.RWPTTKeyDisplay) + Mark(panel.RWPath), "");
}

TEST_F(NeededFieldsTest, AreMarkedNoMoreOnceTheyAreFilled) {
    panel.RWEnable.UserCheck(1);
    panel.RWPath.UserType("/usr/bin/rw");
    EXPECT_EQ(Mark(panel.RWPath), "");
    panel.RWPath.UserType("");
    EXPECT_NE(Mark(panel.RWPath), "");
    panel.RWPTTKeyDisplay.Text = "F12";
    EXPECT_EQ(Mark(panel.RWPTTKeyDisplay), "");
    panel.RWPTTKeyDisplay.Text = "<No Hotkey>";
    EXPECT_NE(Mark(panel.RWPTTKeyDisplay), "");
    // A key's name may be a bracket.
    panel.RWPTTKeyDisplay.Text = "<";
    EXPECT_EQ(Mark(panel.RWPTTKeyDisplay), "");
}

TEST_F(NeededFieldsTest, AKeyIsNotCalledMissingWhileItIsCaptured) {
    panel.RWEnable.UserCheck(1);
    panel.RWPTTKeySet.Enabled = false;
    panel.RWPTTKeyDisplay.Text = "<Press a key on current PC>";
    EXPECT_EQ(Mark(panel.RWPTTKeyDisplay), "");
    // The time is over and no key came.
    panel.RWPTTKeySet.Enabled = true;
    EXPECT_NE(Mark(panel.RWPTTKeyDisplay), "");
}

TEST(NeededFieldsOfLatePageTest, AreMarkedWhenThePageIsMade) {
    PanelControls panel;
    MainWindow window(panel);
    panel.RWEnable.UserCheck(1);
    EXPECT_EQ(window.Page(RogerWilcoPanel).findChild<QLineEdit*>("RWPath")->actions().size(), 1);
}

class FocusAfterClickTest : public ShownPanel {};

TEST_F(FocusAfterClickTest, ReturnsToAButtonThatItsHandlerTurnedOffMeanwhile) {
    GoTo(RogerWilcoPanel);
    auto& button = Widget<QPushButton>(panel.RWPTTKeySet);
    auto& field = Widget<QLineEdit>(panel.RWPTTKeyDisplay);
    panel.RWPTTKeySet.Click = [&] {
        panel.RWPTTKeySet.Enabled = false;
        field.setFocus();
        panel.RWPTTKeySet.Enabled = true;
    };
    button.setFocus();
    button.click();
    EXPECT_EQ(window.focusWidget(), &button);

    // Not to one that didn't have it.
    field.setFocus();
    button.click();
    EXPECT_EQ(window.focusWidget(), &field);
}

}  // namespace
}  // namespace orvelle::qt
