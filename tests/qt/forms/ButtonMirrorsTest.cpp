// Buttons, check boxes and options, from the control to the widget and from the user to the control.
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "adapters/looks/Theme.h"
#include "tests/qt/forms/ShownPanel.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

using Events = std::vector<std::string>;

class ButtonMirrorsTest : public ShownPanel {
protected:
    ButtonMirrorsTest() { GoTo(2); }

    // On the box or the text, at the left.
    void Click(const Control& control) {
        QWidget* widget = window.WidgetOf(control);
        ClickMouse(widget, Qt::LeftButton, {}, QPoint(Unit, widget->height() / 2));
    }
    bool IsOn(Long option) { return Widget<QRadioButton>(panel.optRWDriver(option)).isChecked(); }
};

TEST_F(ButtonMirrorsTest, AButtonShowsItsCaptionLetterByLetter) {
    panel.RWJoySet.Caption = "R&D <b>";
    EXPECT_EQ(Widget<QPushButton>(panel.RWJoySet).text(), QStringLiteral("R&&D <b>"));
}

TEST_F(ButtonMirrorsTest, AClickOnAButtonIsOneClick) {
    panel.RWJoySet.Click = Note("click");
    Click(panel.RWJoySet);
    EXPECT_EQ(events, Events{"click"});
}

TEST_F(ButtonMirrorsTest, ADisabledButtonTakesNoClick) {
    panel.RWJoySet.Click = Note("click");
    panel.RWJoySet.Enabled = false;
    EXPECT_FALSE(window.WidgetOf(panel.RWJoySet)->isEnabled());
    Click(panel.RWJoySet);
    EXPECT_EQ(events, Events{});
}

TEST_F(ButtonMirrorsTest, ADisabledFrameDisablesWhatIsOnIt) {
    panel.Panels(2).Enabled = false;
    EXPECT_FALSE(window.WidgetOf(panel.RWJoySet)->isEnabled());
    panel.Panels(2).Enabled = true;
    EXPECT_TRUE(window.WidgetOf(panel.RWJoySet)->isEnabled());
}

TEST_F(ButtonMirrorsTest, AHiddenControlHasAHiddenWidget) {
    panel.RWJoySet.Visible = false;
    EXPECT_FALSE(window.WidgetOf(panel.RWJoySet)->isVisible());
    panel.RWJoySet.Visible = true;
    EXPECT_TRUE(window.WidgetOf(panel.RWJoySet)->isVisible());
}

TEST_F(ButtonMirrorsTest, ACheckBoxShowsItsValueAndTheProgramsChangeIsOneClick) {
    panel.RWEnable.Click = Note("click");
    panel.RWEnable.Value = 1;
    EXPECT_EQ(Widget<QCheckBox>(panel.RWEnable).checkState(), Qt::Checked);
    panel.RWEnable.Value = 2;
    EXPECT_EQ(Widget<QCheckBox>(panel.RWEnable).checkState(), Qt::PartiallyChecked);
    EXPECT_EQ(events, (Events{"click", "click"}));
}

TEST_F(ButtonMirrorsTest, TheUsersTickIsOneClick) {
    panel.RWEnable.Click = Note("click");
    Click(panel.RWEnable);
    EXPECT_EQ(panel.RWEnable.Value, 1);
    Click(panel.RWEnable);
    EXPECT_EQ(panel.RWEnable.Value, 0);
    EXPECT_EQ(events, (Events{"click", "click"}));
}

TEST_F(ButtonMirrorsTest, AGreyedCheckBoxIsUntickedByAClick) {
    panel.RWEnable.Value = 2;
    Click(panel.RWEnable);
    EXPECT_EQ(panel.RWEnable.Value, 0);
    EXPECT_EQ(Widget<QCheckBox>(panel.RWEnable).checkState(), Qt::Unchecked);
}

TEST_F(ButtonMirrorsTest, AHandlerThatTakesTheTickBackIsSeen) {
    panel.RWEnable.Click = [this] { panel.RWEnable.Value = 0; };
    Click(panel.RWEnable);
    EXPECT_EQ(Widget<QCheckBox>(panel.RWEnable).checkState(), Qt::Unchecked);
}

TEST_F(ButtonMirrorsTest, AtStartNoOptionIsOn) {
    for (Long option = 0; option < 3; ++option) EXPECT_FALSE(IsOn(option));
}

TEST_F(ButtonMirrorsTest, AnOptionThatGoesOnTurnsTheOthersOff) {
    panel.optRWDriver(0).Value = true;
    panel.optRWDriver(2).Value = true;
    EXPECT_FALSE(IsOn(0));
    EXPECT_TRUE(IsOn(2));
    panel.optRWDriver(2).Value = false;
    for (Long option = 0; option < 3; ++option) EXPECT_FALSE(IsOn(option));
}

TEST_F(ButtonMirrorsTest, TheUsersOptionClicksOnceAndAgainDoesNothing) {
    panel.optRWDriver(0).Value = true;
    for (Long option = 0; option < 3; ++option) panel.optRWDriver(option).Click = Note(std::to_string(option));
    Click(panel.optRWDriver(1));
    Click(panel.optRWDriver(1));
    QCoreApplication::processEvents();
    EXPECT_EQ(events, Events{"1"});
    EXPECT_FALSE(panel.optRWDriver(0).Value);
    EXPECT_TRUE(panel.optRWDriver(1).Value);
    EXPECT_FALSE(IsOn(0));
    EXPECT_TRUE(IsOn(1));
}

TEST_F(ButtonMirrorsTest, ArrowKeysGoFromOptionToOption) {
    panel.optRWDriver(0).Value = true;
    auto& first = Widget<QRadioButton>(panel.optRWDriver(0));
    first.setFocus();
    ClickKey(&first, Qt::Key_Down);
    EXPECT_TRUE(panel.optRWDriver(1).Value);
    EXPECT_FALSE(panel.optRWDriver(0).Value);
}

TEST_F(ButtonMirrorsTest, AnOptionThatIsTakenBackLeavesTheOldOneOn) {
    panel.optRWDriver(0).Value = true;
    panel.optRWDriver(1).Click = [this] { panel.optRWDriver(0).Value = true; };
    Click(panel.optRWDriver(1));
    QCoreApplication::processEvents();
    EXPECT_TRUE(IsOn(0));
    EXPECT_FALSE(IsOn(1));
}

}  // namespace
}  // namespace orvelle::qt
