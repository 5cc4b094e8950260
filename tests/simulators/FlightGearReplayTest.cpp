// What a FlightGear really sent, and when, gives a written transcript. Each recording tells seconds and what happened:
//
//   0.438 says COM1=...   this line from now on, 20 times a second
//   5.500 silent          nothing, as it loads, or is stopped or reset
//   9.100 reset           goes on from another socket
//   11.57 ends            its process
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <sstream>

#include "tests/simulators/FlightGearRig.h"

namespace orvelle::simulators {
namespace {

namespace fs = std::filesystem;

constexpr Long Tick = 50;  // milliseconds, as FlightGear is told to send
constexpr pid_t Process = 4711;

std::string Told(const Radio& radio) {
    char text[48];
    std::snprintf(text, sizeof text, "%d%s%s", radio.Kilohertz, radio.IsOperable ? " on" : " off",
                  radio.IsHeard ? " heard" : "");
    return text;
}

std::string Told(const SimulatorSource& source) {
    constexpr std::array Words = {"absent", "busy", "live"};
    std::string told =
        std::string(Words[static_cast<std::size_t>(source.Stands())]) + ", run " + std::to_string(source.Run());
    if (!source.State()) return told;
    const SimulatorState& state = *source.State();
    told += ": " + Told(state.Radios[0]) + "; " + Told(state.Radios[1]) + "; talks " + std::to_string(state.Transmits);
    if (!state.Callsign.empty()) told += "; " + state.Callsign;
    if (!state.Aircraft.empty()) told += "; " + state.Aircraft;
    if (state.IsOnline) told += "; online";
    if (state.IsPaused) told += "; paused";
    if (!state.Where) return told;
    char text[64];
    std::snprintf(text, sizeof text, "; %.3f %.3f %.0f", state.Where->Latitude, state.Where->Longitude,
                  state.Where->Altitude);
    return told + text;
}

class Replay {
public:
    Replay() : rig(Packaged()) {
        rig.Owners[first.Port()] = rig.Owners[second.Port()] = Process;
        rig.Line.Changed = [this] { Note(); };
    }

    std::string Play(std::istream& recording) {
        std::string line;
        while (std::getline(recording, line)) {
            if (line.empty() || line.front() == '#') continue;
            std::istringstream words(line);
            double seconds = 0;
            std::string verb, text;
            words >> seconds >> verb;
            std::getline(words >> std::ws, text);
            GoOn(std::lround(seconds * 1000));
            if (verb == "says") said = text + "\n";
            if (verb == "silent" || verb == "ends") said.clear();
            if (verb == "reset") sender = &second;
            if (verb == "ends") rig.End(Process);
            Say();
        }
        return transcript;
    }

private:
    static AircraftOverrides Packaged() {
        AircraftOverrides aircraft;
        EXPECT_EQ(aircraft.Add(fs::path(FLIGHTGEAR_PACKAGED) / "aircraft.json"), "");
        return aircraft;
    }

    void GoOn(long until) {
        while (now + Tick <= until) {
            rig.Loop.Run(Tick);
            now += Tick;
            Say();
        }
        rig.Loop.Run(static_cast<Long>(until - now));
        now = until;
    }
    void Say() {
        if (!said.empty()) rig.Say(*sender, said);
    }
    void Note() {
        char time[48];
        std::snprintf(time, sizeof time, "%ld.%01ld ", now / 1000, now % 1000 / 100);
        transcript += time + Told(rig.Line) + "\n";
    }

    FlightGearRig rig;
    LoopbackSocket first, second;
    LoopbackSocket* sender = &first;
    std::string said, transcript;
    long now = 0;  // milliseconds
};

class FlightGearReplayTest : public testing::TestWithParam<const char*> {};

TEST_P(FlightGearReplayTest, GivesItsTranscript) {
    const fs::path folder = FLIGHTGEAR_RECORDED;
    std::ifstream recording(folder / (std::string(GetParam()) + ".recording"));
    std::ifstream transcript(folder / (std::string(GetParam()) + ".transcript"));
    ASSERT_TRUE(recording);
    EXPECT_EQ(Replay().Play(recording), std::string(std::istreambuf_iterator<char>(transcript), {}));
}

INSTANTIATE_TEST_SUITE_P(Recorded, FlightGearReplayTest,
                         testing::Values("cessna", "loading", "stopped", "reset", "killed", "saucer", "panel"),
                         [](const auto& each) { return std::string(each.param); });

}  // namespace
}  // namespace orvelle::simulators
