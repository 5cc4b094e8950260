// Microphones that are none: one that gives silence, one that gives nothing but full scale, and one that is there and
// gives nothing at all. What else the engine does goes on.
#include <cmath>
#include <iostream>

#include "tests/heard/EngineRig.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::heard {

using linux::WaitUntil;

namespace {

constexpr std::size_t Second = 48000;  // of samples

// Full scale in half waves of half a millisecond: 1 kHz.
std::vector<float> SquareWave() {
    std::vector<float> wave(Second);
    for (std::size_t index = 0; index < wave.size(); ++index) wave[index] = index / 24 % 2 == 0 ? 1.0F : -1.0F;
    return wave;
}

class MicrophoneTest : public EngineRig {
protected:
    MicrophoneTest() {
        probe.Record(Ear(0));
        probe.Record(Ear(1));
    }
    void Join() {
        ASSERT_TRUE(speaker.Join(0, server.Room("mouth"))) << speaker.Told();
        ASSERT_TRUE(listener.Join(0, server.Room("mouth"))) << listener.Told();
        speaker.Say("mute 0 0");
    }
    pulse::SoundRecording HeardOfASecond() {
        probe.Take(Ear(1));
        EXPECT_TRUE(WaitUntil([this] { return probe.Recorded(Ear(1)).Samples().size() > Second; }));
        return probe.Recorded(Ear(1));
    }
    // The other way, and the rooms.
    void OthersGoOn() {
        const HeardBursts heard = Hear(1, 0, 3);
        std::cout << "the other way: " << heard.Text() << '\n';
        EXPECT_EQ(heard.Lost, 0);
        ASSERT_TRUE(speaker.Join(1, server.Room("other"))) << speaker.Told();
        EXPECT_EQ(speaker.Told().find("left"), std::string::npos);
    }

    Trial speaker{0};
    Trial listener{1};
};

}  // namespace

TEST_F(MicrophoneTest, SilenceIsSilentAndFullScaleNoLouderThanThat) {
    ASSERT_NO_FATAL_FAILURE(Join());
    probe.Play(Mouth(0), std::vector<float>(Second), pulse::Playing::AgainAndAgain);
    // With every sound let through somebody talks, of whom nothing is heard; else nobody does.
    ASSERT_TRUE(listener.Await("audio 0"));
    EXPECT_LT(HeardOfASecond().Level(), -60);
    speaker.Say("squelch 1 0");
    ASSERT_TRUE(listener.Await("quiet 0"));

    probe.Play(Mouth(0), SquareWave(), pulse::Playing::AgainAndAgain);
    ASSERT_TRUE(listener.Await("audio 0"));
    ASSERT_TRUE(WaitUntil([this] { return IsHeardNow(Ear(1), 1000); }));
    const pulse::SoundRecording heard = HeardOfASecond();
    std::cout << "square wave: " << heard.Level() << " dB, its tone " << heard.ToneLevel(1000) << " dB, of another one "
              << heard.ToneLevel(1400) << " dB\n";
    for (const float sample : heard.Samples()) ASSERT_LE(std::abs(sample), 1.0F);
    EXPECT_GT(heard.ToneLevel(1000), -12);
    EXPECT_GT(heard.ToneLevel(1000), heard.ToneLevel(1400) + 20);
    probe.Stop(Mouth(0));
    listener.Say("mute 0 0");
    OthersGoOn();
}

// The lamp is red, and the key of one who can't be heard says nothing to the others.
TEST_F(MicrophoneTest, OneThatGivesNothingDoesNotWork) {
    const OwnFolder folder;
    sounds.Pull(Mouth(0));
    ASSERT_NE(pulse::Pactl({"load-module", "module-pipe-source", "source_name=" + Microphone(0),
                            "file=" + (folder.Path / "pipe").string(), "format=float32le", "rate=48000", "channels=1"}),
              "");
    ASSERT_NO_FATAL_FAILURE(Join());
    listener.Say("mute 0 0");
    ASSERT_TRUE(WaitUntil([this] {
        speaker.Say("works");
        return speaker.Line("works") == "works 0 1 1";
    })) << speaker.Told();
    EXPECT_EQ(listener.Told().find("audio"), std::string::npos) << listener.Told();
    EXPECT_EQ(speaker.Told().find("told"), std::string::npos) << speaker.Told();
    OthersGoOn();
    speaker.Say("works");
    EXPECT_TRUE(speaker.Await("works 0 1 1")) << "and it still does not work";
}

}  // namespace orvelle::heard
