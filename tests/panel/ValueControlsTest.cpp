// The rule that the whole panel rests on: an assignment that really changes a control raises its event at once, inside
// the assignment, whoever assigns, and one that changes nothing raises none.
#include <gtest/gtest.h>

#include <string>

#include "platform/controls/Buttons.h"
#include "platform/controls/Form.h"
#include "platform/controls/Label.h"
#include "platform/controls/Slider.h"
#include "platform/controls/TextBox.h"

namespace orvelle {
namespace {

class ValueControlsTest : public testing::Test {
protected:
    Form form{"Form", ""};
    Frame frame{form, "Panels(0)"};
    std::string raised;
};

TEST_F(ValueControlsTest, ACheckBoxClicksInsideTheAssignmentAndOnlyOnAChange) {
    CheckBox box(form, "Box", &frame, "");
    box.Click = [&] { raised += std::to_string(box.Value()) + ";"; };
    box.Value = 0;
    EXPECT_EQ(raised, "");
    box.Value = 1;
    EXPECT_EQ(raised, "1;");
    box.Value = 1;
    box.Value = 2;
    EXPECT_EQ(raised, "1;2;");
    box.UserCheck(0);
    box.UserCheck(0);
    EXPECT_EQ(raised, "1;2;0;");
}

TEST_F(ValueControlsTest, AHandlerMayAssignItsOwnControl) {
    CheckBox box(form, "Box", &frame, "");
    box.Click = [&] {
        raised += std::to_string(box.Value()) + ";";
        box.Value = 2;
    };
    box.Value = 1;
    EXPECT_EQ(raised, "1;2;");
}

TEST_F(ValueControlsTest, ANestedEventIsOverBeforeTheNextAssignment) {
    CheckBox outer(form, "Outer", &frame, "");
    TextBox inner(form, "Inner", &frame, TextBox::Kind::Editable);
    outer.Click = [&] {
        raised += "outer begins;";
        inner.Text = "x";
        raised += "outer ends;";
    };
    inner.Change = [&] { raised += "inner " + inner.Text() + ";"; };
    outer.Value = 1;
    EXPECT_EQ(raised, "outer begins;inner x;outer ends;");
}

class OptionGroupTest : public ValueControlsTest {
protected:
    OptionGroupTest() {
        for (Long index = 0; index < 3; ++index) {
            OptionButton& option = options.Add(form, "opt", &frame, options, "");
            option.Click = [this, index] {
                raised += std::to_string(index) + (options(0).Value ? " on" : " off") +
                          (options(1).Value ? " on" : " off") + (options(2).Value ? " on" : " off") + ";";
            };
        }
    }

    OptionButton::Group options;
};

TEST_F(OptionGroupTest, NoneIsOnAtFirst) {
    for (Long index = 0; index < 3; ++index) EXPECT_FALSE(options(index).Value);
}

TEST_F(OptionGroupTest, TurningOneOnTurnsTheOthersOffWithoutAClickOfTheirs) {
    options(0).Value = true;
    options(2).Value = true;
    EXPECT_EQ(raised, "0 on off off;2 off off on;");
}

TEST_F(OptionGroupTest, TurningOneOffClicksNothing) {
    options(1).Value = true;
    raised.clear();
    options(1).Value = false;
    EXPECT_EQ(raised, "");
    EXPECT_FALSE(options(0).Value || options(1).Value || options(2).Value);
}

TEST_F(OptionGroupTest, AClickOnTheOneThatIsOnDoesNothing) {
    options(1).UserClick();
    raised.clear();
    options(1).UserClick();
    options(1).Value = true;
    EXPECT_EQ(raised, "");
}

TEST_F(OptionGroupTest, AnIndexBeyondTheGroupIsASubscriptError) {
    for (const Long index : {-1, 3, 7}) {
        try {
            options(index).Value = true;
            FAIL() << "option " << index << " is no option";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, 9);
        }
    }
}

TEST_F(ValueControlsTest, ATextChangesOnceForEachNewText) {
    TextBox box(form, "Box", &frame, TextBox::Kind::Editable);
    box.Change = [&] { raised += box.Text() + ";"; };
    box.Text = "";
    box.Text = "a";
    box.Text = "a";
    box.UserType("ab");
    EXPECT_EQ(raised, "a;ab;");
}

TEST_F(ValueControlsTest, ALockedTextTakesTheProgramsTextAlone) {
    TextBox box(form, "Box", &frame, TextBox::Kind::Locked);
    box.UserType("typed");
    EXPECT_EQ(box.Text(), "");
    box.Text = "<No Hotkey>";
    EXPECT_EQ(box.Text(), "<No Hotkey>");
}

class SliderTest : public ValueControlsTest {
protected:
    SliderTest() {
        slider.Change = [this] { raised += "change " + std::to_string(slider.Value()) + ";"; };
        slider.Scroll = [this] { raised += "scroll " + std::to_string(slider.Value()) + ";"; };
    }

    Slider slider{form, "Slider", &frame, {0, 100, 5, 1}};
};

TEST_F(SliderTest, AMoveByTheUserChangesAndThenScrolls) {
    slider.UserScroll(40);
    EXPECT_EQ(raised, "change 40;scroll 40;");
    raised.clear();
    slider.UserScroll(40);
    EXPECT_EQ(raised, "scroll 40;");
}

TEST_F(SliderTest, AnAssignmentChangesAndNeverScrolls) {
    slider.Value = 60;
    slider.Value = 60;
    EXPECT_EQ(raised, "change 60;");
}

TEST_F(SliderTest, TheValueStaysInTheRangeWhoeverSetsIt) {
    slider.Value = 101;
    EXPECT_EQ(slider.Value(), 100);
    slider.UserScroll(-5);
    EXPECT_EQ(slider.Value(), 0);
    raised.clear();
    slider.Value = -1;
    EXPECT_EQ(raised, "");
}

TEST_F(SliderTest, ANewRangeTakesTheValueWithIt) {
    slider.Value = 80;
    raised.clear();
    slider.Max = 50;
    EXPECT_EQ(slider.Value(), 50);
    slider.Min = 60;
    slider.Max = 70;
    EXPECT_EQ(slider.Value(), 60);
    EXPECT_EQ(raised, "change 50;change 60;");
}

TEST_F(ValueControlsTest, AButtonClicksWhenTheUserClicksIt) {
    CommandButton button(form, "Button", &frame, "Press");
    button.Click = [&] { raised += "click;"; };
    button.UserClick();
    button.UserClick();
    EXPECT_EQ(raised, "click;click;");
}

TEST_F(ValueControlsTest, NothingReachesADisabledControlOrOneOnADisabledPanel) {
    CommandButton button(form, "Button", &frame, "");
    CheckBox box(form, "Box", &frame, "");
    TextBox text(form, "Text", &frame, TextBox::Kind::Editable);
    Slider slider(form, "Slider", &frame, {0, 100, 5, 1});
    button.Click = [&] { raised += "button;"; };
    box.Click = [&] { raised += "box;"; };
    text.Change = [&] { raised += "text;"; };
    slider.Scroll = [&] { raised += "slider;"; };
    const auto act = [&] {
        button.UserClick();
        box.UserCheck(box.Value == 0 ? 1 : 0);
        text.UserType(text.Text() + "x");
        slider.UserScroll(slider.Value + 1);
    };

    frame.Enabled = false;
    act();
    EXPECT_EQ(raised, "");
    frame.Enabled = true;
    for (Control* control : {static_cast<Control*>(&button), static_cast<Control*>(&box), static_cast<Control*>(&text),
                             static_cast<Control*>(&slider)})
        control->Enabled = false;
    act();
    EXPECT_EQ(raised, "");
    box.Value = 1;
    EXPECT_EQ(raised, "box;") << "the program is not stopped";
}

TEST_F(ValueControlsTest, AHiddenControlIsServedAllTheSame) {
    CommandButton button(form, "Button", &frame, "");
    button.Click = [&] { raised += "click;"; };
    button.Visible = false;
    frame.Visible = false;
    button.UserClick();
    EXPECT_EQ(raised, "click;");
}

}  // namespace
}  // namespace orvelle
