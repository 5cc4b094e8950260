// A room is switched from one output to the other and back while somebody talks: how soon that is heard, and that it
// does not click.
#include <array>
#include <iostream>

#include "tests/heard/Clicks.h"
#include "tests/heard/EngineRig.h"
#include "tests/heard/Median.h"

namespace orvelle::heard {

using linux::WaitUntil;
using pulse::Moment;

namespace {

constexpr std::size_t Switches = 11;
constexpr std::size_t MostSwitches = 60;
constexpr double MostMilliseconds = 30;
constexpr double LoudestAllowed = -40;
constexpr double SteadyHertz = 500;

class SwitchTest : public EngineRig {
protected:
    SwitchTest() {
        EXPECT_TRUE(speaker.Join(0, server.Room("switch"))) << speaker.Told();
        EXPECT_TRUE(listener.Join(0, server.Room("switch"))) << listener.Told();
        speaker.Say("mute 0 0");
        probe.Play(Mouth(0), pulse::Tone(SteadyHertz, 1000), pulse::Playing::AgainAndAgain);
        for (const std::string& source : {Ear(1, 0), Ear(1, 1), std::string(Reference::Ear)}) probe.Record(source);
        EXPECT_TRUE(WaitUntil([&] { return IsHeardNow(Ear(1), SteadyHertz); }));
    }

    void SwitchTo(int output) {
        Pass(Ear(1), 100);
        for (const int each : {0, 1}) probe.Take(Ear(1, each));
        MachineWasInTime();
        const Moment asked = std::chrono::steady_clock::now();
        listener.Say("route 0 " + std::to_string(1 - output) + " 0");
        listener.Say("route 0 " + std::to_string(output) + " 1");
        EXPECT_TRUE(WaitUntil([&] { return !probe.Recorded(Ear(1, output)).Sounds().empty(); }));
        Pass(Ear(1), 100);
        const pulse::SoundRecording went = probe.Take(Ear(1, 1 - output));
        const pulse::SoundRecording came = probe.Take(Ear(1, output));
        const double toSound = MillisecondsBetween(asked, came.Sounds().front().first);
        const double toSilence = MillisecondsBetween(asked, went.Sounds().back().second);
        const double click = std::max(LoudestClick(went.Samples()), LoudestClick(came.Samples()));
        std::cout << "to sound " << toSound << " ms, to silence " << toSilence << " ms, click " << click << " dB\n";
        if (!MachineWasInTime()) return;
        toSounds.push_back(toSound);
        toSilences.push_back(toSilence);
        clicks.push_back(click);
    }

    Reference reference{sounds, Microphone(0)};
    Trial speaker{0};
    Trial listener{1};
    std::vector<double> toSounds;
    std::vector<double> toSilences;
    std::vector<double> clicks;
};

}  // namespace

TEST_F(SwitchTest, IsHeardSoonAndDoesNotClick) {
    std::size_t tries = 0;
    for (; clicks.size() < Switches && tries < MostSwitches && !HasFailure(); ++tries) SwitchTo(tries % 2 == 0 ? 1 : 0);
    std::cout << clicks.size() << " of " << tries << " switches: in the median " << MedianOf(toSounds)
              << " ms to sound, " << MedianOf(toSilences) << " ms to silence, click " << MedianOf(clicks) << " dB\n";
    ASSERT_EQ(clicks.size(), Switches) << "the machine had no time for more";
    EXPECT_LT(MedianOf(toSounds), MostMilliseconds);
    EXPECT_LT(MedianOf(toSilences), MostMilliseconds);
    EXPECT_LT(MedianOf(clicks), LoudestAllowed);
}

}  // namespace orvelle::heard
