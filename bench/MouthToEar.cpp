// How much later a voice is heard than it was spoken: by our engine, by the stock client at its lowest settings, and by
// the sound server's own loopback, in turn at one voice server and one sound server, for bench/mouth-to-ear. Bursts of
// a tone go into a microphone and are found in the other computer's headset.
//
//   orvelle-mouth-to-ear [BURSTS]     of each; 100 without
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "tests/heard/Bursts.h"
#include "tests/heard/SoundOfComputers.h"
#include "tests/heard/StockClient.h"
#include "tests/heard/Trial.h"
#include "tests/linux/WaitUntil.h"
#include "tests/mumble/VoiceServerRig.h"
#include "tests/pulse/SoundProbe.h"

using namespace orvelle;
using heard::HeardBursts;
using heard::SoundOfComputers;

namespace {

constexpr int RoundBursts = 10;
constexpr const char* LoopbackLatency = "20";  // milliseconds, as our own output has

// A way from one computer's mouth to the next one's ear.
struct Way {
    std::string Name;
    int Speaker;
    int Listener;
    HeardBursts Heard = {};
};

[[noreturn]] void FailBy(const std::string& reason) {
    std::cerr << "orvelle-mouth-to-ear: " << reason << std::endl;
    std::exit(EXIT_FAILURE);
}

// What is heard of this round is kept, without what the ways' beginning cost.
void Hear(pulse::SoundProbe& probe, Way& way) {
    const std::string microphone = SoundOfComputers::Microphone(way.Speaker);
    const std::string ear = SoundOfComputers::Ear(way.Listener);
    probe.Record(microphone);
    probe.Record(ear);
    probe.Play(SoundOfComputers::Mouth(way.Speaker),
               pulse::Burst(heard::BurstHertz, heard::BurstMilliseconds, heard::BurstPeriod),
               pulse::Playing::AgainAndAgain);
    HeardBursts round;
    linux::WaitUntil([&] {
        round = heard::Compare(probe.Recorded(microphone), probe.Recorded(ear));
        return round.Spoken >= RoundBursts;
    });
    probe.Stop(SoundOfComputers::Mouth(way.Speaker));
    probe.Take(microphone);
    probe.Take(ear);
    way.Heard.Add(round);
}

heard::StockUser StockUserOf(int computer, const mumble::VoiceServerRig& server) {
    return {.Name = "stock" + std::to_string(computer),
            .Host = server.Host(),
            .Port = server.Port(),
            .Channel = "",
            .Microphone = SoundOfComputers::Microphone(computer),
            .Output = SoundOfComputers::Output(computer)};
}

}  // namespace

int main(int count, char** words) {
    const int bursts = count > 1 ? std::atoi(words[1]) : 100;
    SoundOfComputers sounds(8);
    mumble::VoiceServerRig server;
    pulse::SoundProbe probe;
    pulse::Pactl({"load-module", "module-loopback", "source=" + SoundOfComputers::Microphone(4),
                  "sink=" + SoundOfComputers::Output(5), std::string("latency_msec=") + LoopbackLatency});
    heard::Trial speaker(0);
    heard::Trial listener(1);
    if (!speaker.Join(0, server.Room("122.8")) || !listener.Join(0, server.Room("122.8")))
        FailBy("our engines did not join: " + speaker.Told() + listener.Told());
    speaker.Say("mute 0 0");
    // One after the other: of two that start at once, one may open no output.
    heard::StockClient stockSpeaker(StockUserOf(2, server));
    if (!server.HasLogged(":stock2(-1)> Authenticated")) FailBy("a stock client did not come: " + stockSpeaker.Said());
    heard::StockClient stockListener(StockUserOf(3, server));
    if (!server.HasLogged(":stock3(-1)> Authenticated")) FailBy("a stock client did not come: " + stockListener.Said());

    std::vector<Way> ways{{"our engine", 0, 1}, {"stock client, lowest settings", 2, 3}, {"loopback, 20 ms", 4, 5}};
    // The first round is of the ways' own beginnings.
    for (Way& way : ways) Hear(probe, way);
    for (Way& way : ways) way.Heard = {};
    while (ways.front().Heard.Spoken < bursts)
        for (Way& way : ways) Hear(probe, way);

    std::printf("%-30s %7s %5s %7s %7s %7s %7s ms\n", "mouth to ear", "bursts", "lost", "least", "median", "p99",
                "most");
    for (const Way& way : ways)
        std::printf("%-30s %7d %5d %7.1f %7.1f %7.1f %7.1f\n", way.Name.c_str(), way.Heard.Spoken, way.Heard.Lost,
                    way.Heard.Part(0), way.Heard.Median(), way.Heard.Part(0.99), way.Heard.Part(1));
    return EXIT_SUCCESS;
}
