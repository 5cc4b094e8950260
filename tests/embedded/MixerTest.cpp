#include "adapters/embedded/Mixer.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/shared/HandLoop.h"

namespace orvelle::embedded {
namespace {

using Texts = std::vector<std::string>;

class MixerTest : public testing::Test {
protected:
    MixerTest() {
        mixer.InputOpened = [this] { events.push_back("InputOpened"); };
        mixer.InputClosed = [this] { events.push_back("InputClosed"); };
        mixer.MicVolumeChanged = [this] { events.push_back("Mic " + std::to_string(mixer.MicVolume())); };
        mixer.OutputOpened = [this] { events.push_back("OutputOpened"); };
        mixer.OutputClosed = [this] { events.push_back("OutputClosed"); };
        mixer.MasterVolumeChanged = [this] { events.push_back("Master " + std::to_string(mixer.MasterVolume())); };
        mixer.WaveVolumeChanged = [this] { events.push_back("Wave " + std::to_string(mixer.WaveVolume())); };
    }

    void OpenMixer() {
        mixer.Open();
        Run();
    }
    Texts Run(Long milliseconds = 0) {
        loop.Run(milliseconds);
        return std::exchange(events, {});
    }

    HandLoop loop;
    Mixer mixer{loop};
    Texts events;
};

TEST_F(MixerTest, OpenIsAnsweredFromTheLoop) {
    mixer.SetDelay(50);
    mixer.Open();
    EXPECT_TRUE(Run(49).empty());
    EXPECT_EQ(Run(1), (Texts{"InputOpened", "OutputOpened"}));
    mixer.Open();
    EXPECT_TRUE(Run(50).empty());
}

TEST_F(MixerTest, LinesHaveARangeAStepAndALevel) {
    mixer.SetLevel(MixerLine::Microphone, {false, 0, 31, 1, 40});
    mixer.SetLevel(MixerLine::Master, {false, -100, 0, 10, -200});
    mixer.SetLevel(MixerLine::Wave, {true, 0, 0, 0, 0});
    EXPECT_FALSE(mixer.MicUnavailable());
    EXPECT_EQ(mixer.MicMin(), 0);
    EXPECT_EQ(mixer.MicMax(), 31);
    EXPECT_EQ(mixer.MicStep(), 1);
    EXPECT_EQ(mixer.MicVolume(), 31);
    EXPECT_FALSE(mixer.MasterUnavailable());
    EXPECT_EQ(mixer.MasterMin(), -100);
    EXPECT_EQ(mixer.MasterMax(), 0);
    EXPECT_EQ(mixer.MasterStep(), 10);
    EXPECT_EQ(mixer.MasterVolume(), -100);
    EXPECT_TRUE(mixer.WaveUnavailable());
    EXPECT_EQ(mixer.WaveMin(), 0);
    EXPECT_EQ(mixer.WaveMax(), 0);
    EXPECT_EQ(mixer.WaveStep(), 0);
    EXPECT_TRUE(Run().empty());
}

TEST_F(MixerTest, AWriteIsToldFromTheLoopIfItChangedTheLevel) {
    OpenMixer();
    mixer.MicVolume(70);
    mixer.MicVolume(70);
    mixer.MasterVolume(100000);
    mixer.WaveVolume(-100000);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(Run(), (Texts{"Mic 70", "Master 100", "Wave 0"}));
}

TEST_F(MixerTest, SomebodyElseMovesALine) {
    mixer.Move(MixerLine::Wave, 10);
    OpenMixer();
    mixer.Move(MixerLine::Wave, 20);
    EXPECT_EQ(Run(), Texts{"Wave 20"});
}

TEST_F(MixerTest, AnUnavailableLineKeepsItsLevel) {
    OpenMixer();
    mixer.SetLevel(MixerLine::Microphone, {true, 0, 100, 5, 50});
    EXPECT_EQ(Run(), (Texts{"InputClosed", "InputOpened"}));
    mixer.MicVolume(70);
    EXPECT_TRUE(Run().empty());
    EXPECT_EQ(mixer.MicVolume(), 50);
}

TEST_F(MixerTest, APluggedDeviceOpensAndAnUnpluggedOneCloses) {
    mixer.SetPlugged(SoundDirection::Output, false);
    mixer.Open();
    EXPECT_EQ(Run(), Texts{"InputOpened"});
    mixer.SetPlugged(SoundDirection::Output, true);
    EXPECT_EQ(Run(), Texts{"OutputOpened"});
    mixer.SetPlugged(SoundDirection::Input, false);
    EXPECT_EQ(Run(), Texts{"InputClosed"});
}

TEST_F(MixerTest, AnotherDeviceIsOpenedInPlaceOfTheOld) {
    mixer.InputDevice("Headset Microphone");
    EXPECT_TRUE(Run().empty());
    OpenMixer();
    mixer.InputDevice("Headset Microphone");
    EXPECT_TRUE(Run().empty());
    mixer.OutputDevice("Headset");
    EXPECT_EQ(Run(), (Texts{"OutputClosed", "OutputOpened"}));
    EXPECT_EQ(mixer.DeviceName(SoundDirection::Input), "Headset Microphone");
    EXPECT_EQ(mixer.DeviceName(SoundDirection::Output), "Headset");
}

TEST_F(MixerTest, NothingIsToldAfterClose) {
    OpenMixer();
    mixer.MicVolume(70);
    mixer.OutputDevice("Headset");
    mixer.Close();
    mixer.WaveVolume(70);
    mixer.SetPlugged(SoundDirection::Input, false);
    EXPECT_TRUE(Run(1000).empty());
    EXPECT_FALSE(mixer.IsOpen());
    EXPECT_EQ(mixer.WaveVolume(), 70);
    mixer.Open();
    EXPECT_EQ(Run(), Texts{"OutputOpened"});
}

}  // namespace
}  // namespace orvelle::embedded
