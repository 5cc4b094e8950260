#include "adapters/pulse/DeviceTitles.h"

#include <gtest/gtest.h>

namespace orvelle::pulse {
namespace {

TEST(DeviceTitlesTest, ADescriptionIsOneLineOfText) {
    DeviceTitles titles;
    EXPECT_EQ(titles.For("a", " Pilot's \"best\"\nhead\tset \r\n"), "Pilot's \"best\" head set");
    EXPECT_EQ(titles.For("b", "Kopfh\xf6rer"), "Kopfhörer");
    EXPECT_EQ(titles.For("c", std::string(300, 'x')), std::string(300, 'x'));
    EXPECT_EQ(titles.For("alsa_output.usb", "\n"), "alsa_output.usb");
    EXPECT_EQ(titles.For("\n", ""), "Device");
}

TEST(DeviceTitlesTest, WordsThatMeanSomethingElseAreNoTitles) {
    DeviceTitles titles;
    EXPECT_EQ(titles.For("a", "None"), "None (2)");
    EXPECT_EQ(titles.For("b", "Default Mapper"), "Default Mapper (2)");
    EXPECT_EQ(titles.For("c", "<DEFAULT>"), "<DEFAULT> (2)");
    EXPECT_EQ(titles.For("d", "DirectSound - wave - Headset"), "Headset");
    EXPECT_EQ(titles.For("e", "WAVE - "), "WAVE -");
}

TEST(DeviceTitlesTest, EachDeviceHasATitleOfItsOwnAndKeepsIt) {
    DeviceTitles titles;
    EXPECT_EQ(titles.For("a", "Headset"), "Headset");
    EXPECT_EQ(titles.For("b", "Headset"), "Headset (2)");
    EXPECT_EQ(titles.For("c", "Headset (2)"), "Headset (2) (2)");
    EXPECT_EQ(titles.For("d", "Headset"), "Headset (3)");
    EXPECT_EQ(titles.For("b", "Headset"), "Headset (2)");
    EXPECT_EQ(titles.For("a", "Loudspeakers"), "Loudspeakers");
    EXPECT_EQ(titles.For("e", "Headset"), "Headset");
}

}  // namespace
}  // namespace orvelle::pulse
