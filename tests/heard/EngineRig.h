// Our engine's tests at one sound server and one voice server: what is spoken into a microphone and heard in an ear.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <utility>

#include "tests/heard/Bursts.h"
#include "tests/heard/SoundOfComputers.h"
#include "tests/heard/Trial.h"
#include "tests/linux/WaitUntil.h"
#include "tests/mumble/VoiceServerRig.h"
#include "tests/pulse/SoundProbe.h"

namespace orvelle::heard {

inline double MillisecondsBetween(pulse::Moment from, pulse::Moment to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

class EngineRig : public testing::Test {
protected:
    explicit EngineRig(int computers = 2, mumble::VoiceServerSetting setting = {})
        : sounds(computers), server(std::move(setting)) {}
    explicit EngineRig(SoundOfComputers::Server kind) : sounds(2, kind) {}

    static std::string Mouth(int computer) { return SoundOfComputers::Mouth(computer); }
    static std::string Microphone(int computer) { return SoundOfComputers::Microphone(computer); }
    static std::string Ear(int computer, int output = 0) { return SoundOfComputers::Ear(computer, output); }

    // So many bursts of one computer's mouth in the other one's ear, once the first ones were heard.
    HeardBursts Hear(int speaker, int listener, int count) {
        probe.Record(Microphone(speaker));
        probe.Record(Ear(listener));
        probe.Play(Mouth(speaker), pulse::Burst(BurstHertz, BurstMilliseconds, BurstPeriod),
                   pulse::Playing::AgainAndAgain);
        EXPECT_TRUE(linux::WaitUntil([&] { return probe.Recorded(Ear(listener)).Sounds().size() >= 3; }));
        probe.Take(Ear(listener));
        probe.Take(Microphone(speaker));
        HeardBursts heard;
        EXPECT_TRUE(linux::WaitUntil([&] {
            heard = Compare(probe.Recorded(Microphone(speaker)), probe.Recorded(Ear(listener)));
            return heard.Spoken >= count;
        }));
        probe.Stop(Mouth(speaker));
        return heard;
    }

    // Whether a tone is heard in an ear now: in a tenth of a second, at least 20 dB over tones that nobody speaks.
    bool IsHeardNow(const std::string& ear, double hertz) {
        const pulse::SoundRecording recorded = probe.Recorded(ear);
        if (recorded.Samples().size() < 4800) return false;
        const pulse::Moment end = recorded.At(recorded.Samples().size() - 1);
        const pulse::Moment begin = end - std::chrono::milliseconds(100);
        const double level = recorded.ToneLevel(hertz, begin, end);
        return level > -60 && level > recorded.ToneLevel(5000, begin, end) + 20;
    }

    SoundOfComputers sounds;
    mumble::VoiceServerRig server;
    pulse::SoundProbe probe;
};

}  // namespace orvelle::heard
