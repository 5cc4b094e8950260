// The voice from microphone to ear where the sound server is PipeWire, which serves PulseAudio's clients by a program
// of its own.
#include <iostream>

#include "tests/heard/EngineRig.h"

namespace orvelle::heard {

using linux::WaitUntil;
using pulse::Moment;

namespace {

class PipeWireTest : public EngineRig {
protected:
    PipeWireTest() : EngineRig(SoundOfComputers::Server::PipeWire) {}

    bool IsQuiet() {
        const pulse::SoundRecording recorded = probe.Last(Ear(1), 300);
        return recorded.Samples().size() >= 9600 && recorded.Sounds().empty();
    }
};

}  // namespace

TEST_F(PipeWireTest, BurstsAreHeardAndPressAndReleaseToo) {
    Trial speaker(0);
    Trial listener(1);
    ASSERT_TRUE(speaker.Join(0, server.Room("wire"))) << speaker.Told();
    ASSERT_TRUE(listener.Join(0, server.Room("wire"))) << listener.Told();
    speaker.Say("mute 0 0");
    const HeardBursts heard = Hear(0, 1, 8);
    std::cout << "ours to ours with PipeWire: " << heard.Text() << '\n';
    EXPECT_EQ(heard.Lost, 0);
    speaker.Say("mute 0 1");
    ASSERT_TRUE(listener.Await("quiet 0"));

    probe.Play(Mouth(0), pulse::Tone(BurstHertz, 1000), pulse::Playing::AgainAndAgain);
    for (int press = 0; press < 3; ++press) {
        ASSERT_TRUE(WaitUntil([this] { return IsQuiet(); }));
        probe.Take(Ear(1));
        const Moment pressed = std::chrono::steady_clock::now();
        speaker.Say("mute 0 0");
        ASSERT_TRUE(listener.Await("audio 0"));
        ASSERT_TRUE(WaitUntil([this] { return !probe.Recorded(Ear(1)).Sounds().empty(); }));
        const Moment released = std::chrono::steady_clock::now();
        speaker.Say("mute 0 1");
        ASSERT_TRUE(listener.Await("quiet 0"));
        ASSERT_TRUE(WaitUntil([this] { return IsQuiet(); }));
        const auto sounds = probe.Recorded(Ear(1)).Sounds();
        std::cout << "press to sound " << MillisecondsBetween(pressed, sounds.front().first)
                  << " ms, release to silence " << MillisecondsBetween(released, sounds.back().second) << " ms\n";
    }
    for (Trial* const trial : {&speaker, &listener}) {
        trial->Say("works");
        EXPECT_TRUE(trial->Await("works 1 1 1")) << trial->Told();
    }
}

}  // namespace orvelle::heard
