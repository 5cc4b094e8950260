// Whether a voice that is never interrupted stays as near as it began, for bench/voice-drift: bursts of a tone from our
// engine to ours, minute by minute, beside the sound server's own loopback, which hears the same bursts.
//
//   orvelle-voice-drift [MINUTES [PPM]]     20 minutes without; the listener's headset is so much faster
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>
#include <thread>

#include "tests/heard/Bursts.h"
#include "tests/heard/SoundOfComputers.h"
#include "tests/heard/Trial.h"
#include "tests/mumble/VoiceServerRig.h"
#include "tests/pulse/ClockedSink.h"
#include "tests/pulse/SoundProbe.h"
#include "tests/shared/OwnFolder.h"

using namespace orvelle;
using heard::HeardBursts;
using heard::SoundOfComputers;

namespace {

constexpr int Speaker = 0;
constexpr int Listener = 1;
constexpr int Loopback = 2;         // whose ear the sound server's loopback plays into
constexpr double WantedDrift = 10;  // milliseconds, at the most

void Print(const char* name, const HeardBursts& heard) {
    std::printf("  %s %3d bursts, %2d lost, least %5.1f, quartile %5.1f, median %5.1f", name, heard.Spoken, heard.Lost,
                heard.Part(0), heard.Part(0.25), heard.Median());
}

}  // namespace

int main(int count, char** words) {
    const int minutes = count > 1 ? std::atoi(words[1]) : 20;
    const double faster = count > 2 ? std::atof(words[2]) : 0;
    const OwnFolder pipes;
    SoundOfComputers sounds(3);
    std::optional<pulse::ClockedSink> headset;
    if (faster != 0) {
        sounds.Pull(SoundOfComputers::Output(Listener));
        headset.emplace(SoundOfComputers::Output(Listener), pipes.Path, faster);
    }
    mumble::VoiceServerRig server;
    pulse::SoundProbe probe;
    pulse::Pactl({"load-module", "module-loopback", "source=" + SoundOfComputers::Microphone(Speaker),
                  "sink=" + SoundOfComputers::Output(Loopback), "latency_msec=20"});
    heard::Trial speaker(Speaker);
    heard::Trial listener(Listener);
    if (!speaker.Join(0, server.Room("drift")) || !listener.Join(0, server.Room("drift"))) {
        std::cerr << "orvelle-voice-drift: the engines did not join: " << speaker.Told() << listener.Told();
        return EXIT_FAILURE;
    }
    speaker.Say("mute 0 0");
    const std::string microphone = SoundOfComputers::Microphone(Speaker);
    const std::string ours = SoundOfComputers::Ear(Listener);
    const std::string loopback = SoundOfComputers::Ear(Loopback);
    for (const std::string& source : {microphone, ours, loopback}) probe.Record(source);
    probe.Play(SoundOfComputers::Mouth(Speaker),
               pulse::Burst(heard::BurstHertz, heard::BurstMilliseconds, heard::BurstPeriod),
               pulse::Playing::AgainAndAgain);
    // The first second is of the beginning itself.
    std::this_thread::sleep_for(std::chrono::seconds(1));
    for (const std::string& source : {microphone, ours, loopback}) probe.Take(source);

    std::optional<HeardBursts> first;
    HeardBursts last;
    int lost = 0;
    auto due = std::chrono::steady_clock::now();
    for (int minute = 1; minute <= minutes; ++minute) {
        std::this_thread::sleep_until(due += std::chrono::minutes(1));
        const pulse::SoundRecording spoken = probe.Take(microphone);
        last = heard::Compare(spoken, probe.Take(ours));
        std::printf("minute %2d:", minute);
        Print("ours", last);
        Print("| loopback", heard::Compare(spoken, probe.Take(loopback)));
        std::printf(" ms\n");
        std::fflush(stdout);
        if (!first) first = last;
        lost += last.Lost;
    }
    if (!first) return EXIT_FAILURE;
    const double drift = last.Part(0.25) - first->Part(0.25);
    std::printf("from the first minute to the last: least %+.1f, quartile %+.1f, median %+.1f ms; %d bursts lost\n",
                last.Part(0) - first->Part(0), drift, last.Median() - first->Median(), lost);
    return std::abs(drift) <= WantedDrift ? EXIT_SUCCESS : EXIT_FAILURE;
}
