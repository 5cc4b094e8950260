// Our engine where sound comes and goes: a device is pulled and comes back, the sound server is killed and comes back.
#include <iostream>

#include "tests/heard/EngineRig.h"

namespace orvelle::heard {

using linux::WaitUntil;

namespace {

class DevicesTest : public EngineRig {
protected:
    // The line "works MICROPHONE HEADSET SPEAKERS".
    bool Works(Trial& trial, const std::string& expected) {
        return WaitUntil([&] {
            trial.Say("works");
            return trial.Line("works") == "works " + expected;
        });
    }
};

}  // namespace

TEST_F(DevicesTest, PulledAndPluggedInAgainIsHeardAgain) {
    Trial speaker(0);
    Trial listener(1);
    ASSERT_TRUE(speaker.Join(0, server.Room("plug"))) << speaker.Told();
    ASSERT_TRUE(listener.Join(0, server.Room("plug"))) << listener.Told();
    ASSERT_TRUE(Works(listener, "1 1 1"));
    const pulse::Moment pulled = std::chrono::steady_clock::now();
    sounds.Pull(SoundOfComputers::Output(1));
    ASSERT_TRUE(Works(listener, "1 0 1"));
    const pulse::Moment seen = std::chrono::steady_clock::now();
    const pulse::Moment added = std::chrono::steady_clock::now();
    sounds.Add(SoundOfComputers::Output(1));
    ASSERT_TRUE(Works(listener, "1 1 1"));
    std::cout << "headset pulled: known after " << MillisecondsBetween(pulled, seen) << " ms; back: works after "
              << MillisecondsBetween(added, std::chrono::steady_clock::now()) << " ms\n";
    speaker.Say("mute 0 0");
    EXPECT_EQ(Hear(0, 1, 10).Lost, 0);
}

TEST_F(DevicesTest, KilledSoundServerComesBack) {
    Trial listener(1);
    ASSERT_TRUE(listener.Join(0, server.Room("kill"))) << listener.Told();
    ASSERT_TRUE(Works(listener, "1 1 1"));
    sounds.Kill();
    const pulse::Moment killed = std::chrono::steady_clock::now();
    ASSERT_TRUE(Works(listener, "0 0 0"));
    const pulse::Moment seen = std::chrono::steady_clock::now();
    sounds.Start();
    const pulse::Moment started = std::chrono::steady_clock::now();
    ASSERT_TRUE(Works(listener, "1 1 1"));
    std::cout << "sound server killed: known after " << MillisecondsBetween(killed, seen) << " ms; back: works after "
              << MillisecondsBetween(started, std::chrono::steady_clock::now()) << " ms\n";
    // The room was never left.
    EXPECT_EQ(listener.Told().find("left 0"), std::string::npos);
}

}  // namespace orvelle::heard
