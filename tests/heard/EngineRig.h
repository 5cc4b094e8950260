// Our engine's tests at one sound server and one voice server: what is spoken into a microphone and heard in an ear.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "tests/heard/Bursts.h"
#include "tests/heard/Reference.h"
#include "tests/heard/SoundOfComputers.h"
#include "tests/heard/Trial.h"
#include "tests/linux/WaitUntil.h"
#include "tests/mumble/VoiceServerRig.h"
#include "tests/pulse/SoundProbe.h"

namespace orvelle::heard {

// Milliseconds of a delay that are not the sound server's own, over an unhurt network and over one that loses packets.
constexpr double MostOfOurs = 45;
constexpr double MostOfOursMended = 60;

constexpr int MostRounds = 40;  // of three seconds

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

    // So many bursts, or some more, of one computer's mouth in the other one's ear, in rounds of which the machine had
    // time for all; once the first ones were heard, and what a beginning costs is over.
    HeardBursts Hear(int speaker, int listener, int count) {
        Reference reference(sounds, Microphone(speaker));
        const std::string mouth = Microphone(speaker);
        const std::string ear = Ear(listener);
        const std::vector<std::string> sources{mouth, ear, Reference::Ear};
        for (const std::string& source : sources) probe.Record(source);
        probe.Play(Mouth(speaker), pulse::Burst(BurstHertz, BurstMilliseconds, BurstPeriod),
                   pulse::Playing::AgainAndAgain);
        EXPECT_TRUE(linux::WaitUntil([&] { return probe.Last(ear, 4 * BurstPeriod).Sounds().size() >= 3; }));
        Pass(ear, 4 * BurstPeriod);
        HeardBursts heard;
        int excused = 0;
        for (int round = 0; round < MostRounds && heard.Spoken < count; ++round) {
            for (const std::string& source : sources) probe.Take(source);
            Pass(ear, 6 * BurstPeriod);
            heard.Add(Compare(probe.Take(mouth), probe.Take(ear), probe.Take(Reference::Ear)));
            if (std::exchange(excused, heard.Excused) == heard.Excused) continue;
            reference.Renew();
            Pass(ear, 2 * BurstPeriod);
        }
        EXPECT_GE(heard.Spoken, count) << "the machine had no time for more";
        probe.Stop(Mouth(speaker));
        return heard;
    }

    // Whether a tone that is spoken all the time came through the reference without a hole, since the last question.
    bool MachineWasInTime() {
        const pulse::SoundRecording recorded = probe.Take(Reference::Ear);
        return !recorded.Samples().empty() && recorded.Sounds(pulse::LeastSound, Hole).size() == 1 &&
               recorded.Sounds(pulse::LeastSound, Hole).front().first <= recorded.At(Hole * 48);
    }

    // So much time by the sound server's clock.
    void Pass(const std::string& source, Long milliseconds) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
        EXPECT_TRUE(linux::WaitUntil([&] {
            const pulse::SoundRecording last = probe.Last(source, 1);
            return !last.Samples().empty() && last.At(last.Samples().size() - 1) > end;
        }));
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
