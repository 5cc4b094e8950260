// How long a press of the talk button takes to be heard, from a joystick on the simulator's computer to the headset of
// another pilot: by orvelle-sim, the set-up's broker, the panel, its voice engine, a voice server and another engine. A
// tone is in the panel's microphone all the time. In turn with it, for comparison, a voice engine that a line of its
// input opens.
//
//   orvelle-press-to-ear DISPLAY-SCRIPT PRESSES     of each
//
// The exit status is 1 where one is not heard or not followed by silence, or where a median is more than a second.
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "adapters/looks/Text.h"
#include "adapters/qt/services/Application.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "apps/Waiting.h"
#include "bench/TalkSetUp.h"
#include "tests/heard/Bursts.h"
#include "tests/heard/SoundOfComputers.h"
#include "tests/heard/Trial.h"
#include "tests/mumble/VoiceServerRig.h"
#include "tests/pulse/SoundProbe.h"

using namespace orvelle;
using heard::SoundOfComputers;
using pulse::Moment;
using std::chrono::milliseconds;

namespace {

constexpr Long SilenceMilliseconds = 200;
constexpr double ManyMilliseconds = 1000;  // what no promise of ours takes, and in the midst no busy machine either
constexpr int PanelsComputer = 0;
constexpr int ListenersComputer = 1;
constexpr int ComparedComputer = 2;

double MillisecondsBetween(Moment from, Moment to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

[[noreturn]] void FailBy(const std::string& reason) {
    std::cerr << "orvelle-press-to-ear: " << reason << std::endl;
    std::exit(EXIT_FAILURE);
}

// What opens and closes a microphone, each giving its moment, and what became of it.
struct Way {
    std::function<Moment()> Press;
    std::function<Moment()> Release;
    std::vector<double> ToSound = {};  // milliseconds
    std::vector<double> ToSilence = {};
    int Lost = 0;    // presses that nobody heard, and releases that silence did not follow
    int Broken = 0;  // presses with a hole in what was heard, as on a machine that has no time for sound
};

// Between two presses, and of a press: of no fixed length, so that no phase of any clock is favoured.
class Pauses {
public:
    void Between() { Pass(milliseconds(300), milliseconds(700)); }
    void WhileDown() { Pass(milliseconds(200), milliseconds(300)); }

private:
    void Pass(milliseconds least, milliseconds most) {
        std::uniform_int_distribution<Long> lengths(static_cast<Long>(std::chrono::nanoseconds(least).count() / 1000),
                                                    static_cast<Long>(std::chrono::nanoseconds(most).count() / 1000));
        const Moment end = std::chrono::steady_clock::now() + std::chrono::microseconds(lengths(numbers));
        // The loop is looked at in steps of its own.
        WaitUntil([end] { return std::chrono::steady_clock::now() > end - milliseconds(3); });
        std::this_thread::sleep_until(end);
    }

    std::mt19937 numbers{20};
};

class Listener {
public:
    Listener(pulse::SoundProbe& soundProbe, std::string source) : probe(soundProbe), ear(std::move(source)) {
        probe.Record(ear);
    }

    void Hear(Way& way) {
        pauses.Between();
        probe.Take(ear);
        const Moment pressed = way.Press();
        const bool isHeard = WaitUntil([this] { return HasSound(); });
        pauses.WhileDown();
        const Moment released = way.Release();
        const bool isSilent = WaitUntil([this] { return !HasSound(); });
        const auto sounds = probe.Take(ear).Sounds();
        if (!isHeard || !isSilent) {
            ++way.Lost;
            return;
        }
        way.ToSound.push_back(MillisecondsBetween(pressed, sounds.front().first));
        const double toSilence = MillisecondsBetween(released, sounds.back().second);
        if (sounds.size() > 1 || toSilence < 0) ++way.Broken;
        if (toSilence >= 0) way.ToSilence.push_back(toSilence);
    }

private:
    bool HasSound() { return !probe.Last(ear, SilenceMilliseconds).Sounds().empty(); }

    pulse::SoundProbe& probe;
    const std::string ear;
    Pauses pauses;
};

void PrintRow(const char* name, const std::vector<double>& delays) {
    std::printf("%-42s %6zu %7.1f %7.1f %7.1f %7.1f\n", name, delays.size(), heard::PartOf(delays, 0),
                heard::PartOf(delays, 0.5), heard::PartOf(delays, 0.99), heard::PartOf(delays, 1));
}

double Load() {
    double load = 0;
    getloadavg(&load, 1);
    return load;
}

}  // namespace

int main(int count, char** words) {
    if (count != 3) FailBy("usage: orvelle-press-to-ear DISPLAY-SCRIPT PRESSES");
    const int presses = std::atoi(words[2]);
    const QString displayScript = QFileInfo(words[1]).absoluteFilePath();
    qt::Application application("orvelle-press-to-ear", "offscreen",
                                [](const std::exception& error) { FailBy(error.what()); });
    const QTemporaryDir work;
    if (!work.isValid()) FailBy("no folder to work in: " + FromQt(work.errorString()));
    qt::QtEventLoop loop;
    const double loadBefore = Load();

    SoundOfComputers sounds(3);
    mumble::VoiceServerRig server;
    pulse::SoundProbe probe;
    heard::Trial listening(ListenersComputer);
    heard::Trial compared(ComparedComputer);
    for (heard::Trial* const each : {&listening, &compared})
        if (!each->Join(0, server.Room("122.8"))) FailBy("an engine did not join: " + each->Told());
    TalkSetUp pilot(
        loop, QDir(work.path()), displayScript,
        {sounds.Server(), SoundOfComputers::Microphone(PanelsComputer), SoundOfComputers::Output(PanelsComputer)});
    if (const std::string problem = pilot.Begin(); !problem.empty()) FailBy(problem);
    pilot.Tune(server.Address(), "122.8");
    const std::string moved = std::string("Moved ") + TalkSetUp::Callsign;
    if (!WaitUntil([&] { return server.TimesLogged(moved) > 0; })) FailBy("the panel does not join: " + server.Log());
    for (const int computer : {PanelsComputer, ComparedComputer})
        probe.Play(SoundOfComputers::Mouth(computer), pulse::Tone(heard::BurstHertz, 1000),
                   pulse::Playing::AgainAndAgain);

    std::vector<double> toBroker;
    Moment pressedAt;
    bool isAwaited = false;
    pilot.Watch().InputHeard = [&](const SimulatorInput& input) {
        if (!isAwaited || input.Buttons.empty()) return;
        toBroker.push_back(MillisecondsBetween(pressedAt, std::chrono::steady_clock::now()));
        isAwaited = false;
    };
    Way button{[&] {
                   isAwaited = true;
                   return pressedAt = pilot.Button.Press();
               },
               [&] { return pilot.Button.Release(); }};
    const auto say = [&](const char* command) {
        const Moment before = std::chrono::steady_clock::now();
        compared.Say(command);
        return before;
    };
    Way alone{[&] { return say("mute 0 0"); }, [&] { return say("mute 0 1"); }};

    Listener ear(probe, SoundOfComputers::Ear(ListenersComputer));
    const auto hearBoth = [&] {
        ear.Hear(button);
        ear.Hear(alone);
        // What they tell is read as it comes, so that neither waits for it.
        listening.Await("quiet 0");
        listening.Await("quiet 0");
        compared.Await("quiet 0");
    };
    // The first ones are of the ways' own beginnings.
    hearBoth();
    for (Way* const each : {&button, &alone}) *each = {each->Press, each->Release};
    toBroker.clear();
    for (int press = 0; press < presses; ++press) hearBoth();

    std::printf("%-42s %6s %7s %7s %7s %7s ms\n", "from a button to another pilot's ear", "times", "least", "median",
                "p99", "most");
    PrintRow("press to sound", button.ToSound);
    PrintRow("release to silence", button.ToSilence);
    PrintRow("press to the broker's word of it", toBroker);
    PrintRow("a voice engine alone, opened to sound", alone.ToSound);
    PrintRow("a voice engine alone, closed to silence", alone.ToSilence);
    std::printf("lost %d and %d, broken %d and %d; load %.1f before and %.1f after\n", button.Lost, alone.Lost,
                button.Broken, alone.Broken, loadBefore, Load());
    const bool isSoon = heard::PartOf(button.ToSound, 0.5) < ManyMilliseconds &&
                        heard::PartOf(button.ToSilence, 0.5) < ManyMilliseconds;
    return isSoon && button.Lost + alone.Lost == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
