// How long a press of the talk button takes to be heard, from a joystick on the simulator's computer to the headset of
// another pilot: by orvelle-sim, the set-up's broker, the panel, its voice engine, a voice server and another engine. A
// tone is in the microphone all the time. In turn with it, for comparison, a voice engine alone, which a line of its
// program's input opens.
//
//   orvelle-press-to-ear DISPLAY-SCRIPT PRESSES     of each
//
// The exit status is 1 where one is not heard or not followed by silence, or where a median is more than a second.
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "adapters/looks/Text.h"
#include "adapters/qt/services/Application.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "apps/Waiting.h"
#include "bench/PressListener.h"
#include "bench/TalkSetUp.h"
#include "tests/heard/Bursts.h"
#include "tests/heard/Median.h"
#include "tests/heard/SoundOfComputers.h"
#include "tests/heard/Trial.h"
#include "tests/mumble/VoiceServerRig.h"

namespace orvelle {

namespace {

using heard::MillisecondsBetween;
using heard::PartOf;
using heard::SoundOfComputers;
using pulse::Moment;

constexpr double ManyMilliseconds = 1000;  // what no promise of ours takes, and mostly no busy machine either
constexpr const char* Channel = "122.8";
enum Computer { Panels, Listeners, Compared, Computers };

class PressToEar {
public:
    PressToEar(EventLoop& loop, const QDir& work, const QString& displayScript)
        : pilot(loop, work, displayScript,
                {sounds.Address(), SoundOfComputers::Microphone(Panels), SoundOfComputers::Output(Panels)}) {}

    void Begin();
    void Measure(int presses);
    // Whether all was heard, and soon.
    bool Print() const;

private:
    bool Hear();
    Moment Say(const char* command);
    void TakeInput(const SimulatorInput& input);

    SoundOfComputers sounds{Computers};
    mumble::VoiceServerRig server;
    pulse::SoundProbe probe;
    heard::Trial listening{Listeners};
    heard::Trial compared{Compared};
    TalkSetUp pilot;
    PressListener listener{probe, SoundOfComputers::Ear(Listeners)};
    PressWay button{[this] { return pressed = pilot.Button.Press(); }, [this] { return pilot.Button.Release(); }};
    PressWay alone{[this] { return Say("mute 0 0"); }, [this] { return Say("mute 0 1"); }};
    Moment pressed;
    bool isDown = false;  // as the broker says
    std::vector<double> toBroker;
};

// All are in the channel, and tones in the microphones.
void PressToEar::Begin() {
    for (heard::Trial* const each : {&listening, &compared})
        if (!each->Join(0, server.Room(Channel))) throw std::runtime_error("an engine does not join: " + each->Told());
    if (const std::string problem = pilot.Begin(); !problem.empty()) throw std::runtime_error(problem);
    pilot.Watch().InputHeard = [this](const SimulatorInput& input) { TakeInput(input); };
    pilot.Tune(server.Address(), Channel);
    const std::string moved = std::string("Moved ") + TalkSetUp::Callsign;
    if (!WaitUntil([&] { return server.TimesLogged(moved) > 0; }))
        throw std::runtime_error("the panel does not join: " + server.Log());
    for (const Computer computer : {Panels, Compared})
        probe.Play(SoundOfComputers::Mouth(computer), pulse::Tone(heard::BurstHertz, 1000),
                   pulse::Playing::AgainAndAgain);
}

// Of the first ones the ways' own beginnings are a part.
void PressToEar::Measure(int presses) {
    if (!Hear()) throw std::runtime_error("a first press is not heard, or not followed by silence");
    for (PressWay* const each : {&button, &alone}) *each = {each->Press, each->Release};
    toBroker.clear();
    for (int press = 0; press < presses; ++press) Hear();
}

// Of each way once; false where one is lost. What the engines tell is read as it comes, so that neither waits for that.
bool PressToEar::Hear() {
    const bool isButtonHeard = listener.Hear(button);
    if (isButtonHeard) {
        listening.Await("quiet 0");
        compared.Await("quiet 0");
    }
    const bool isAloneHeard = listener.Hear(alone);
    if (isAloneHeard) listening.Await("quiet 0");
    return isButtonHeard && isAloneHeard;
}

Moment PressToEar::Say(const char* command) {
    const Moment before = std::chrono::steady_clock::now();
    compared.Say(command);
    return before;
}

// What is held is said again and again.
void PressToEar::TakeInput(const SimulatorInput& input) {
    if (!isDown && !input.Buttons.empty())
        toBroker.push_back(MillisecondsBetween(pressed, std::chrono::steady_clock::now()));
    isDown = !input.Buttons.empty();
}

bool PressToEar::Print() const {
    std::printf("%-42s %6s %7s %7s %7s %7s ms\n", "from a button to another pilot's ear", "times", "least", "median",
                "p99", "most");
    const auto row = [](const char* name, const std::vector<double>& delays) {
        std::printf("%-42s %6zu %7.1f %7.1f %7.1f %7.1f\n", name, delays.size(), PartOf(delays, 0), PartOf(delays, 0.5),
                    PartOf(delays, 0.99), PartOf(delays, 1));
    };
    row("press to sound", button.ToSound);
    row("release to silence", button.ToSilence);
    row("press to the broker's word of it", toBroker);
    row("a voice engine alone, opened to sound", alone.ToSound);
    row("a voice engine alone, closed to silence", alone.ToSilence);
    std::printf("lost: %d and %d, broken: %d and %d\n", button.Lost, alone.Lost, button.Broken, alone.Broken);
    return PartOf(button.ToSound, 0.5) < ManyMilliseconds && PartOf(button.ToSilence, 0.5) < ManyMilliseconds &&
           button.Lost + alone.Lost == 0;
}

double Load() {
    double load = 0;
    getloadavg(&load, 1);
    return load;
}

bool Run(int presses, const QString& displayScript) {
    const QTemporaryDir work;
    if (!work.isValid()) throw std::runtime_error("no folder to work in: " + FromQt(work.errorString()));
    qt::QtEventLoop loop;
    const double loadBefore = Load();
    PressToEar measuring(loop, QDir(work.path()), displayScript);
    measuring.Begin();
    measuring.Measure(presses);
    const bool isSoon = measuring.Print();
    std::printf("load: %.1f before, %.1f after\n", loadBefore, Load());
    return isSoon;
}

[[noreturn]] void FailBy(const std::string& reason) {
    std::cerr << "orvelle-press-to-ear: " << reason << std::endl;
    std::exit(EXIT_FAILURE);
}

}  // namespace

}  // namespace orvelle

int main(int count, char** words) {
    using namespace orvelle;
    if (count != 3) FailBy("usage: orvelle-press-to-ear DISPLAY-SCRIPT PRESSES");
    qt::Application application("orvelle-press-to-ear", "offscreen",
                                [](const std::exception& error) { FailBy(error.what()); });
    try {
        return Run(std::atoi(words[2]), QFileInfo(words[1]).absoluteFilePath()) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& error) {
        FailBy(error.what());
    }
}
