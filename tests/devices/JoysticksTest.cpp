#include "adapters/linux/Joysticks.h"

#include "adapters/linux/EvdevKeyboards.h"
#include "adapters/linux/KernelKeyboard.h"
#include "tests/devices/DeviceRig.h"
#include "tests/devices/MockedDevices.h"

namespace orvelle::linux {
namespace {

const MockedDevice Stick{
    "Maker Inc. Stick", {BTN_TRIGGER, BTN_THUMB, BTN_THUMB2, BTN_TOP}, {ABS_X, ABS_Y, ABS_HAT0X, ABS_HAT0Y}};
const MockedDevice Throttle{"Throttle", {BTN_0, BTN_1, BTN_TRIGGER_HAPPY1}, {ABS_THROTTLE}, {BTN_1}};

class JoysticksTest : public DeviceRig {
protected:
    void Press(int number, int code) { devices.Tell(number, EV_KEY, code, 1); }
    void Release(int number, int code) { devices.Tell(number, EV_KEY, code, 0); }

    MockedDevices devices;
};

TEST_F(JoysticksTest, HaveTheirButtonsCountedInTheOrderOfTheirCodes) {
    devices.Add(3, Stick);
    devices.Add(12, Throttle);
    const Joysticks joysticks(loop, side);
    EXPECT_EQ(joysticks.Names(), (Lines{"Maker Inc Stick", "Throttle"}));
    Press(3, BTN_THUMB2);
    ASSERT_TRUE(Until([&] { return side.Said.size() == 1; }));
    Press(12, BTN_TRIGGER_HAPPY1);
    ASSERT_TRUE(Until([&] { return side.Said.size() == 2; }));
    Release(3, BTN_THUMB2);
    Release(12, BTN_TRIGGER_HAPPY1);
    ASSERT_TRUE(Until([&] { return side.HeldButtons().empty(); }));
    EXPECT_EQ(side.Said[0], " | Maker Inc Stick.Button 3");
    EXPECT_EQ(side.Said[1], " | Maker Inc Stick.Button 3 | Throttle.Button 3");
}

TEST_F(JoysticksTest, HaveHatsWhoseWaysAreButtons) {
    devices.Add(3, Stick);
    const Joysticks joysticks(loop, side);
    devices.Tell(3, EV_ABS, ABS_HAT0Y, -1);
    devices.Tell(3, EV_ABS, ABS_HAT0X, -1);
    devices.Tell(3, EV_ABS, ABS_HAT0X, 1);
    devices.Tell(3, EV_ABS, ABS_HAT0Y, 0);
    devices.Tell(3, EV_ABS, ABS_X, 1);
    devices.Tell(3, EV_ABS, ABS_HAT0X, 0);
    ASSERT_TRUE(Until([&] { return side.Said.size() == 6; }));
    const std::string hat = " | Maker Inc Stick.Hat 1 ";
    EXPECT_EQ(side.Said, (Lines{hat + "Up", hat + "Up" + hat + "Left", hat + "Up", hat + "Up" + hat + "Right",
                                hat + "Right", ""}));
}

TEST_F(JoysticksTest, OfOneNameAreToldApart) {
    devices.Add(3, Stick);
    devices.Add(4, Stick);
    const Joysticks joysticks(loop, side);
    EXPECT_EQ(joysticks.Names(), (Lines{"Maker Inc Stick", "Maker Inc Stick 2"}));
    Press(4, BTN_TRIGGER);
    EXPECT_TRUE(Until([&] { return side.HeldButtons() == Lines{"Maker Inc Stick 2.Button 1"}; }));
}

TEST_F(JoysticksTest, AreNoneThatAreMiceTabletsOrKeyboards) {
    devices.Add(1, {"Mouse", {BTN_LEFT, BTN_RIGHT, BTN_MIDDLE}, {ABS_X, ABS_Y}});
    devices.Add(2, {"Tablet", {BTN_TOOL_PEN, BTN_TOUCH, BTN_0}, {ABS_X, ABS_Y}});
    devices.Add(3, {"Keyboard", {KEY_Q, KEY_W, KEY_A, BTN_TRIGGER}, {}});
    devices.Add(4, {"Power", {KEY_POWER}, {}});
    devices.Add(5, {"Gamepad", {BTN_SOUTH}, {}});
    const Joysticks joysticks(loop, side);
    EXPECT_EQ(joysticks.Names(), (Lines{"Gamepad"}));
}

TEST_F(JoysticksTest, AreFoundWhenTheyComeAndLetGoWhenTheyGo) {
    Joysticks joysticks(loop, side);
    int changes = 0;
    joysticks.Changed = [&] { ++changes; };
    devices.Add(7, Stick);
    ASSERT_TRUE(Until([&] { return joysticks.Names() == Lines{"Maker Inc Stick"}; }));
    Press(7, BTN_TRIGGER);
    ASSERT_TRUE(Until([&] { return !side.HeldButtons().empty(); }));
    devices.Remove(7);
    ASSERT_TRUE(Until([&] { return joysticks.Names().empty(); }));
    EXPECT_TRUE(side.HeldButtons().empty());
    devices.Add(8, Throttle);
    ASSERT_TRUE(Until([&] { return joysticks.Names() == Lines{"Throttle"}; }));
    EXPECT_EQ(changes, 3);
}

TEST_F(JoysticksTest, KeepSilentOfSwitchesThatStoodWhenTheyWereFound) {
    devices.Add(3, Throttle);
    const Joysticks joysticks(loop, side);
    Press(3, BTN_0);
    ASSERT_TRUE(Until([&] { return !side.Said.empty(); }));
    EXPECT_EQ(side.HeldButtons(), (Lines{"Throttle.Button 1"}));
    Release(3, BTN_1);
    Press(3, BTN_1);
    EXPECT_TRUE(Until([&] { return side.HeldButtons() == Lines{"Throttle.Button 1", "Throttle.Button 2"}; }));
}

TEST_F(JoysticksTest, ThatLostEventsAreAskedWhatIsHeld) {
    devices.Add(3, Stick);
    const Joysticks joysticks(loop, side);
    Press(3, BTN_TRIGGER);
    ASSERT_TRUE(Until([&] { return !side.HeldButtons().empty(); }));
    devices.Tell(3, EV_SYN, SYN_DROPPED, 0);  // the device answers that nothing is down
    EXPECT_TRUE(Until([&] { return side.HeldButtons().empty(); }));
}

const MockedDevice Keys{"Keyboard", {KEY_LEFTCTRL, KEY_A, KEY_F8, KEY_RIGHTALT}, {}, {KEY_LEFTCTRL}};

// A panel on the same computer would hear itself.
TEST_F(JoysticksTest, StandBesideThePanelsOwnKeyboardThatIsNotRead) {
    MockedDevice panels = Keys;
    panels.Name = KernelKeyboard::Name;
    devices.Add(1, panels);
    const EvdevKeyboards keyboards(loop, side);
    EXPECT_NE(keyboards.Problem(), "");
    EXPECT_EQ(side.HeldSequence(), "");
}

TEST_F(JoysticksTest, StandBesideKeyboardsThatAreReadByTheirPlaces) {
    devices.Add(1, Keys);
    devices.Add(2, {"Headset", {KEY_VOLUMEUP}, {}});
    EvdevKeyboards keyboards(loop, side);
    EXPECT_EQ(keyboards.Problem(), "");
    EXPECT_EQ(side.HeldSequence(), "Ctrl");
    Press(1, KEY_F8);
    devices.Tell(1, EV_KEY, KEY_F8, 2);
    Press(1, KEY_RIGHTALT);
    ASSERT_TRUE(Until([&] { return side.HeldSequence() == "Ctrl+F8+Right Alt"; }));
    devices.Remove(1);
    ASSERT_TRUE(Until([&] { return side.HeldSequence().empty(); }));
    EXPECT_EQ(side.Said.size(), 6U);
    EXPECT_NE(keyboards.Problem(), "");
}

}  // namespace
}  // namespace orvelle::linux
