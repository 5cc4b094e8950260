// A panel whose thread is stuck for a second, as in a dialog or a driver that waits, talks and listens on: a steady
// tone has no hole and no click.
#include <iostream>
#include <vector>

#include "tests/heard/Clicks.h"
#include "tests/heard/EngineRig.h"
#include "tests/heard/Median.h"

namespace orvelle::heard {

namespace {

constexpr std::size_t Seconds = 5;
constexpr std::size_t MostSeconds = 40;
constexpr double LoudestAllowed = -40;
constexpr double SteadyHertz = 500;

class StuckThreadTest : public EngineRig {
protected:
    StuckThreadTest() {
        EXPECT_TRUE(speaker.Join(0, server.Room("stuck"))) << speaker.Told();
        EXPECT_TRUE(listener.Join(0, server.Room("stuck"))) << listener.Told();
        speaker.Say("mute 0 0");
        probe.Play(Mouth(0), pulse::Tone(SteadyHertz, 1000), pulse::Playing::AgainAndAgain);
        for (const std::string& source : {Ear(1), std::string(Reference::Ear)}) probe.Record(source);
        EXPECT_TRUE(linux::WaitUntil([&] { return IsHeardNow(Ear(1), SteadyHertz); }));
        Pass(Ear(1), 1000);
    }

    // In the median of those seconds for which the machine had time, all that came while its thread slept was whole.
    void SleepsUnheard(Trial& stuck) {
        std::vector<double> pieces;
        std::vector<double> clicks;
        for (std::size_t tries = 0; clicks.size() < Seconds && tries < MostSeconds && !HasFailure(); ++tries) {
            MachineWasInTime();
            probe.Take(Ear(1));
            stuck.Say("sleep 1000");
            EXPECT_TRUE(stuck.Await("slept"));
            const pulse::SoundRecording heard = probe.Take(Ear(1));
            const bool counts = MachineWasInTime() && heard.Samples().size() > 40000;
            const auto sounds = heard.Sounds(pulse::LeastSound, Hole);
            const double click = LoudestClick(heard.Samples());
            std::cout << "in a second of sleep: " << heard.Samples().size() << " samples in " << sounds.size()
                      << " pieces, loudest click " << click << (counts ? " dB\n" : " dB, excused\n");
            if (!counts) continue;
            pieces.push_back(static_cast<double>(sounds.size()));
            clicks.push_back(click);
        }
        ASSERT_EQ(clicks.size(), Seconds) << "the machine had no time for more";
        EXPECT_EQ(MedianOf(pieces), 1);
        EXPECT_LT(MedianOf(clicks), LoudestAllowed);
    }

    Reference reference{sounds, Microphone(0)};
    Trial speaker{0};
    Trial listener{1};
};

}  // namespace

TEST_F(StuckThreadTest, TalksOn) { SleepsUnheard(speaker); }

TEST_F(StuckThreadTest, ListensOn) { SleepsUnheard(listener); }

}  // namespace orvelle::heard
