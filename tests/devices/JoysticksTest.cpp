#include "adapters/linux/Joysticks.h"

#include "tests/devices/DeviceRig.h"
#include "tests/devices/MockedDevices.h"

namespace orvelle::linux {
namespace {

const MockedDevice Stick{"Maker Inc. Stick",
                         {BTN_TRIGGER, BTN_THUMB, BTN_THUMB2, BTN_TOP},
                         {ABS_X, ABS_Y, ABS_HAT0X, ABS_HAT0Y}};
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

}  // namespace
}  // namespace orvelle::linux
