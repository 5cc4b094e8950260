#include "apps/Devices.h"

#include <algorithm>
#include <optional>

#include "apps/UserStrokes.h"
#include "tests/devices/DeviceRig.h"
#include "tests/devices/RecordedSoundServer.h"
#include "tests/linux/XServer.h"

namespace orvelle {
namespace {

class DevicesTest : public DeviceRig {
protected:
    DevicesTest() {
        std::string pattern = std::filesystem::temp_directory_path() / "orvelle-devices-XXXXXX";
        folder = mkdtemp(pattern.data());
        setting.Display = display.Display();
        setting.Inputs = folder / "input";
        setting.Sounds = SOUNDS;
    }
    ~DevicesTest() override { std::filesystem::remove_all(folder); }

    std::filesystem::path folder;
    linux::XServer display;
    DevicesSetting setting;
};

TEST_F(DevicesTest, PressKeysAndPlayTheSoundsThatAreAskedFor) {
    RecordedSoundServer server(folder);
    setting.SoundServer = server.Address();
    side.AskForSound("Tessaly\\RADIO_NOCHANNEL.wav");  // before
    const Devices devices(loop, side, setting);
    EXPECT_TRUE(devices.Problems().empty());
    EXPECT_TRUE(devices.Joysticks().empty());
    UserStrokes(display.Display()).Press(74);
    EXPECT_TRUE(Until([&] { return side.HeldSequence() == "F8"; }));
    EXPECT_TRUE(side.SimulatorActive());
    ASSERT_TRUE(std::ranges::all_of(server.Heard(), [](std::int16_t sample) { return sample == 0; }));
    side.AskForSound("Tessaly\\RADIO_ONCHANNEL.wav");
    EXPECT_TRUE(Until([&] { return std::ranges::any_of(server.Heard(), [](int sample) { return sample > 1000; }); }));
}

TEST_F(DevicesTest, ReadKeyboardsOfTheKernelInAWaylandSessionAlone) {
    setting.SessionType = "wayland";
    const Devices devices(loop, side, setting);
    ASSERT_EQ(devices.Problems().size(), 1U);
    EXPECT_NE(devices.Problems().front().find("group \"input\""), std::string::npos);
}

TEST_F(DevicesTest, TellWhenKeysCanNotBeReadAnyMore) {
    Devices devices(loop, side, setting);
    int changes = 0;
    devices.Changed = [&] { ++changes; };
    UserStrokes(display.Display()).Press(74);
    ASSERT_TRUE(Until([&] { return side.HeldSequence() == "F8"; }));
    display.End();
    ASSERT_TRUE(Until([&] { return changes == 1; }));
    EXPECT_EQ(devices.Problems().size(), 1U);
    EXPECT_EQ(side.HeldSequence(), "");
}

}  // namespace
}  // namespace orvelle
