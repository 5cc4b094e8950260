#include "adapters/shared/DeviceInputs.h"

#include "tests/devices/DeviceRig.h"

namespace orvelle {
namespace {

class DeviceInputsTest : public DeviceRig {
protected:
    DeviceInputs inputs{side};
};

TEST_F(DeviceInputsTest, OfOneNameAreHeldFromTheFirstPressToTheLastRelease) {
    inputs.PressKey(1, 38, "A");
    inputs.PressKey(2, 38, "A");
    inputs.Release(1, 38);
    EXPECT_EQ(side.HeldSequence(), "A");
    inputs.Release(2, 38);
    EXPECT_EQ(side.Said, (Lines{"A", ""}));
}

TEST_F(DeviceInputsTest, GoUpUnderTheNameThatTheyWentDownWith) {
    inputs.PressKey(1, 38, "A");
    inputs.PressKey(1, 38, "Q");
    inputs.Release(1, 38);
    EXPECT_EQ(side.Said, (Lines{"A", ""}));
}

TEST_F(DeviceInputsTest, OfOneDeviceAreLetGoTogether) {
    inputs.PressKey(1, 38, "A");
    inputs.PressButton(2, 288, "Stick", "Button 1");
    inputs.PressButton(2, 289, "Stick", "Button 2");
    inputs.ReleaseAllOf(2);
    EXPECT_EQ(side.HeldSequence(), "A");
    EXPECT_TRUE(side.HeldButtons().empty());
}

TEST_F(DeviceInputsTest, WithoutANameAreNone) {
    inputs.PressKey(1, 250, "");
    inputs.Release(1, 250);
    EXPECT_TRUE(side.Said.empty());
}

}  // namespace
}  // namespace orvelle
