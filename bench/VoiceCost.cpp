// What the heard voice engine costs in three rooms, for bench/voice-cost: in silence, while it talks in all of them,
// and while it hears somebody talk in all of them. With another build's folder the two builds take turns at one voice
// server and one sound server, so that the computer's other load is shared by both.
//
//   orvelle-voice-cost [SECONDS] [ROUNDS] [OTHER-BUILD]     SECONDS (5) a measurement, ROUNDS (3), whose medians are
//   told
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "bench/ProcessFigures.h"
#include "tests/heard/Bursts.h"
#include "tests/heard/Median.h"
#include "tests/heard/SoundOfComputers.h"
#include "tests/heard/Trial.h"
#include "tests/mumble/VoiceServerRig.h"
#include "tests/pulse/SoundProbe.h"

using namespace orvelle;
using heard::SoundOfComputers;

namespace {

constexpr int Computers = 2;
constexpr std::chrono::milliseconds Settling{2500};  // until outputs of which nothing is heard rest

struct Figures {
    std::vector<double> Percent;  // of a core
    std::vector<double> WakeUps;  // a second
};

[[noreturn]] void FailBy(const std::string& reason) {
    std::cerr << "orvelle-voice-cost: " << reason << std::endl;
    std::exit(EXIT_FAILURE);
}

class Measurement {
public:
    explicit Measurement(std::chrono::seconds time) : time(time) {}

    // Both computers at once, each in its own phase.
    void Run(const std::array<heard::Trial*, Computers>& trials, const std::array<std::string, Computers>& phases) {
        std::this_thread::sleep_for(Settling);
        const auto begin = std::chrono::steady_clock::now();
        std::array<Activity, Computers> before;
        for (std::size_t each = 0; each < trials.size(); ++each) before[each] = ReadActivityOfOne(trials[each]->Id());
        std::this_thread::sleep_for(time);
        for (std::size_t each = 0; each < trials.size(); ++each) {
            const Activity now = ReadActivityOfOne(trials[each]->Id());
            const std::chrono::duration<double> gone = std::chrono::steady_clock::now() - begin;
            Figures& figures = found[{each, phases[each]}];
            figures.Percent.push_back((now.CpuMilliseconds - before[each].CpuMilliseconds) / 10 / gone.count());
            figures.WakeUps.push_back((now.WakeUps - before[each].WakeUps) / gone.count());
        }
    }

    void Print(const std::array<std::string, Computers>& names) const {
        std::printf("%-20s %-10s %10s %10s %10s\n", "build", "phase", "least %", "median %", "wake-ups/s");
        for (const auto& [whose, figures] : found)
            std::printf("%-20s %-10s %10.2f %10.2f %10.0f\n", names.at(whose.first).c_str(), whose.second.c_str(),
                        heard::PartOf(figures.Percent, 0), heard::MedianOf(figures.Percent),
                        heard::MedianOf(figures.WakeUps));
    }

private:
    const std::chrono::seconds time;
    std::map<std::pair<std::size_t, std::string>, Figures> found;
};

}  // namespace

int main(int count, char** words) {
    const std::chrono::seconds seconds(count > 1 ? std::atoi(words[1]) : 5);
    const int rounds = count > 2 ? std::atoi(words[2]) : 3;
    const std::string other = count > 3 ? words[3] : "";

    SoundOfComputers sounds(Computers);
    mumble::VoiceServerRig server;
    pulse::SoundProbe probe;
    heard::Trial ours(0);
    heard::Trial theirs(1, other.empty() ? heard::OwnTrialFiles() : heard::TrialFilesIn(other));
    const std::array<heard::Trial*, Computers> trials{&ours, &theirs};
    for (heard::Trial* const trial : trials)
        for (int room = 0; room < 3; ++room)
            if (!trial->Join(room, server.Room("cost" + std::to_string(room)))) FailBy("not joined: " + trial->Told());
    for (int computer = 0; computer < Computers; ++computer)
        probe.Play(SoundOfComputers::Mouth(computer), pulse::Tone(heard::BurstHertz, 1000),
                   pulse::Playing::AgainAndAgain);

    const auto talk = [](heard::Trial& trial, bool on) {
        for (int room = 0; room < 3; ++room) trial.Say("mute " + std::to_string(room) + (on ? " 0" : " 1"));
    };
    Measurement measurement(seconds);
    for (int round = 0; round < rounds; ++round) {
        measurement.Run(trials, {"silent", "silent"});
        talk(ours, true);
        measurement.Run(trials, {"talking", "hearing"});
        talk(ours, false);
        talk(theirs, true);
        measurement.Run(trials, {"hearing", "talking"});
        talk(theirs, false);
    }
    measurement.Print({"this build", other.empty() ? "this build, again" : "the other build"});
    return EXIT_SUCCESS;
}
