#include "adapters/ends/MixerEnd.h"

#include <gtest/gtest.h>

#include <vector>

#include "adapters/embedded/Mixer.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::ends {
namespace {

using Texts = std::vector<std::string>;

class MixerEndTest : public testing::Test {
protected:
    MixerEndTest() {
        end.InputOpened = [this] { events.push_back("InputOpened"); };
        end.InputClosed = [this] { events.push_back("InputClosed"); };
        end.MicVolumeChanged = [this] { events.push_back("Mic " + std::to_string(end.MicVolume())); };
        end.OutputOpened = [this] { events.push_back("OutputOpened"); };
        end.OutputClosed = [this] { events.push_back("OutputClosed"); };
        end.MasterVolumeChanged = [this] { events.push_back("Master " + std::to_string(end.MasterVolume())); };
        end.WaveVolumeChanged = [this] { events.push_back("Wave " + std::to_string(end.WaveVolume())); };
        second.Move(MixerLine::Master, 80);
    }

    Texts Run() {
        loop.Run();
        return std::exchange(events, {});
    }

    HandLoop loop;
    embedded::Mixer first{loop};
    embedded::Mixer second{loop};
    MixerEnd end{first};
    Texts events;
};

TEST_F(MixerEndTest, TheOneThatServesIsReadAndSetAndHeard) {
    end.Open();
    EXPECT_EQ(Run(), (Texts{"InputOpened", "OutputOpened"}));
    end.MicVolume(10);
    end.MasterVolume(20);
    end.WaveVolume(30);
    EXPECT_EQ(Run(), (Texts{"Mic 10", "Master 20", "Wave 30"}));
    EXPECT_EQ(first.MasterVolume(), 20);
    EXPECT_EQ(second.MasterVolume(), 80);
    second.Move(MixerLine::Wave, 1);
    EXPECT_TRUE(Run().empty());
}

TEST_F(MixerEndTest, ANextOneTakesOverVisibly) {
    end.InputDevice("Microphone");
    end.OutputDevice("Headset");
    end.Open();
    Run();
    end.MasterVolume(20);  // told no more
    end.Serve(second);
    EXPECT_EQ(Run(), (Texts{"InputClosed", "OutputClosed", "InputOpened", "OutputOpened"}));
    EXPECT_FALSE(first.IsOpen());
    EXPECT_EQ(second.DeviceName(SoundDirection::Input), "Microphone");
    EXPECT_EQ(second.DeviceName(SoundDirection::Output), "Headset");
    EXPECT_EQ(end.MasterVolume(), 80);
    first.Open();
    first.Move(MixerLine::Master, 1);
    EXPECT_TRUE(Run().empty());
    end.Serve(second);
    EXPECT_TRUE(Run().empty());
}

TEST_F(MixerEndTest, ASideThatWasClosedIsNotClosedAgain) {
    first.SetPlugged(SoundDirection::Input, false);
    second.SetPlugged(SoundDirection::Output, false);
    end.Open();
    EXPECT_EQ(Run(), Texts{"OutputOpened"});
    end.Serve(second);
    EXPECT_EQ(Run(), (Texts{"OutputClosed", "InputOpened"}));
}

TEST_F(MixerEndTest, AMixerThatIsNotOpenStaysSo) {
    end.Serve(second);
    EXPECT_TRUE(Run().empty());
    EXPECT_FALSE(second.IsOpen());
    end.Open();
    Run();
    end.Close();
    end.Serve(first);
    EXPECT_TRUE(Run().empty());
    EXPECT_FALSE(first.IsOpen());
}

}  // namespace
}  // namespace orvelle::ends
