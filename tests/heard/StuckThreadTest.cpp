// A panel whose thread is stuck for a second, as in a dialog or a driver that waits, talks and listens on: a steady
// tone has no hole and no click. A machine without time tears holes of its own, but not each time; a stuck thread
// would.
#include <iostream>

#include "tests/heard/Clicks.h"
#include "tests/heard/EngineRig.h"

namespace orvelle::heard {

namespace {

constexpr int MostTries = 12;
constexpr double LoudestAllowed = -40;
constexpr double SteadyHertz = 500;

class StuckThreadTest : public EngineRig {
protected:
    StuckThreadTest() {
        EXPECT_TRUE(speaker.Join(0, server.Room("stuck"))) << speaker.Told();
        EXPECT_TRUE(listener.Join(0, server.Room("stuck"))) << listener.Told();
        speaker.Say("mute 0 0");
        probe.Play(Mouth(0), pulse::Tone(SteadyHertz, 1000), pulse::Playing::AgainAndAgain);
        probe.Record(Ear(1));
        EXPECT_TRUE(linux::WaitUntil([&] { return IsHeardNow(Ear(1), SteadyHertz); }));
        Pass(Ear(1), 1000);
    }

    // Whether all that came while its thread slept was whole.
    bool SleepsUnheard(Trial& stuck) {
        probe.Take(Ear(1));
        stuck.Say("sleep 1000");
        EXPECT_TRUE(stuck.Await("slept"));
        const pulse::SoundRecording heard = probe.Take(Ear(1));
        const auto sounds = heard.Sounds(pulse::LeastSound, Hole);
        const double click = LoudestClick(heard.Samples());
        std::cout << "in a second of sleep: " << heard.Samples().size() << " samples in " << sounds.size()
                  << " pieces, loudest click " << click << " dB\n";
        return heard.Samples().size() > 40000 && sounds.size() == 1 && click < LoudestAllowed;
    }
    bool SleepsUnheardOnce(Trial& stuck) {
        for (int tries = 0; tries < MostTries; ++tries)
            if (SleepsUnheard(stuck)) return true;
        return false;
    }

    Trial speaker{0};
    Trial listener{1};
};

}  // namespace

TEST_F(StuckThreadTest, TalksOn) { EXPECT_TRUE(SleepsUnheardOnce(speaker)); }

TEST_F(StuckThreadTest, ListensOn) { EXPECT_TRUE(SleepsUnheardOnce(listener)); }

}  // namespace orvelle::heard
