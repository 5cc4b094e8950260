// How soon a pressed key is heard at the other end, and a released one is silence there.
#include <iostream>

#include "tests/heard/EngineRig.h"
#include "tests/heard/Median.h"

namespace orvelle::heard {

using linux::WaitUntil;
using pulse::Moment;

namespace {

constexpr std::size_t Presses = 9;
constexpr std::size_t MostPresses = 60;
constexpr double MostMilliseconds = 60;
constexpr std::chrono::milliseconds Silence{200};

class PressTest : public EngineRig {
protected:
    // In milliseconds.
    double PressToSound() {
        const Moment pressed = std::chrono::steady_clock::now();
        speaker.Say("mute 0 0");
        EXPECT_TRUE(WaitUntil([&] { return !probe.Recorded(Ear(1)).Sounds().empty(); }));
        EXPECT_TRUE(listener.Await("audio 0"));
        return MillisecondsBetween(pressed, probe.Recorded(Ear(1)).Sounds().front().first);
    }
    double ReleaseToSilence() {
        const Moment released = std::chrono::steady_clock::now();
        speaker.Say("mute 0 1");
        EXPECT_TRUE(WaitUntil([&] {
            const auto recorded = probe.Recorded(Ear(1));
            return recorded.Sounds().back().second < recorded.At(recorded.Samples().size() - 1) - Silence;
        }));
        EXPECT_TRUE(listener.Await("quiet 0"));
        return MillisecondsBetween(released, probe.Recorded(Ear(1)).Sounds().back().second);
    }

    Trial speaker{0};
    Trial listener{1};
};

}  // namespace

TEST_F(PressTest, PressIsHeardAndReleaseIsSilence) {
    ASSERT_TRUE(speaker.Join(0, server.Room("tower"))) << speaker.Told();
    ASSERT_TRUE(listener.Join(0, server.Room("tower"))) << listener.Told();
    const Reference reference(sounds, Microphone(0));
    probe.Play(Mouth(0), pulse::Tone(BurstHertz, 1000), pulse::Playing::AgainAndAgain);
    for (const std::string& source : {Ear(1), std::string(Reference::Ear)}) probe.Record(source);
    std::vector<double> presses;
    std::vector<double> releases;
    std::size_t tries = 0;
    for (; presses.size() < Presses && tries < MostPresses && !HasFailure(); ++tries) {
        MachineWasInTime();
        Pass(Ear(1), 100);
        // What is spoken while no key is down is not heard.
        EXPECT_LT(probe.Take(Ear(1)).Level(), -60);
        const double press = PressToSound();
        const double release = ReleaseToSilence();
        probe.Take(Ear(1));
        std::cout << "press to sound " << press << " ms, release to silence " << release << " ms\n";
        if (!MachineWasInTime()) continue;
        presses.push_back(press);
        releases.push_back(release);
    }
    std::cout << presses.size() << " of " << tries << " presses: in the median " << MedianOf(presses)
              << " ms to sound, " << MedianOf(releases) << " ms to silence\n";
    ASSERT_EQ(presses.size(), Presses) << "the machine had no time for more";
    EXPECT_LT(MedianOf(presses), MostMilliseconds);
    EXPECT_LT(MedianOf(releases), MostMilliseconds);
}

}  // namespace orvelle::heard
