// Our engine's tests at one sound server and one voice server: what is spoken into a microphone and heard in an ear.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

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
    HeardBursts Hear(int speaker, int listener, int count);

    // Whether a tone that is spoken all the time came through the reference without a hole, since the last question.
    bool MachineWasInTime();

    // So much time by the sound server's clock.
    void Pass(const std::string& source, Long milliseconds);

    // Whether a tone is heard in an ear now: in a tenth of a second, at least 20 dB over tones that nobody speaks.
    bool IsHeardNow(const std::string& ear, double hertz);

    SoundOfComputers sounds;
    mumble::VoiceServerRig server;
    pulse::SoundProbe probe;
};

}  // namespace orvelle::heard
