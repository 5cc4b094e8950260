// What our engine costs: while it is off, in three rooms in silence, and while it talks in all of them.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>

#include "tests/heard/EngineRig.h"

namespace orvelle::heard {

using linux::WaitUntil;

namespace {

constexpr std::size_t Second = 48000;  // of samples, by which the time is told here
// Of the voice thread, a second. The sound server brings the microphone's block in two halves; outputs of which nothing
// is heard are looked at four times a second, as is the rest.
constexpr double WakeUpsExpected = 240;
constexpr double PanelWakeUpsExpected = 4;
constexpr double Leeway = 1.5;

class CostTest : public EngineRig {
protected:
    static std::filesystem::path Files(const Trial& trial) { return "/proc/" + std::to_string(trial.Id()); }

    // A number that stands in a line of the process's status, or in all of its threads'.
    static long InStatus(const std::filesystem::path& folder, const std::string& name) {
        std::ifstream file(folder / "status");
        for (std::string line; std::getline(file, line);)
            if (line.starts_with(name + ":")) return std::stol(line.substr(name.size() + 1));
        return 0;
    }
    // By thread, the panel's first.
    static std::map<pid_t, long> WakeUps(const Trial& trial) {
        std::map<pid_t, long> counts;
        for (const auto& thread : std::filesystem::directory_iterator(Files(trial) / "task"))
            counts[std::stoi(thread.path().filename())] = InStatus(thread.path(), "voluntary_ctxt_switches");
        return counts;
    }
    static double ProcessorSeconds(const Trial& trial) {
        std::ifstream file(Files(trial) / "stat");
        std::string words;
        std::getline(file, words);
        std::istringstream rest(words.substr(words.rfind(')') + 2));
        std::string word;
        for (int skipped = 0; skipped < 11; ++skipped) rest >> word;
        long user = 0;
        long system = 0;
        rest >> user >> system;
        return static_cast<double>(user + system) / static_cast<double>(sysconf(_SC_CLK_TCK));
    }
    // Passes so much time at the sound server.
    bool Pass(std::size_t seconds) {
        probe.Take(Microphone(1));
        return WaitUntil([&] { return probe.Recorded(Microphone(1)).Samples().size() > seconds * Second; });
    }
    struct Cost {
        double Percent = 0;       // of a core
        double PanelWakeUps = 0;  // of the panel's thread, a second
        double VoiceWakeUps = 0;  // of all others
    };
    Cost CostWhile(const Trial& trial, std::size_t seconds) {
        const double begun = ProcessorSeconds(trial);
        const std::map<pid_t, long> before = WakeUps(trial);
        EXPECT_TRUE(Pass(seconds));
        const auto time = static_cast<double>(seconds);
        Cost cost{.Percent = (ProcessorSeconds(trial) - begun) / time * 100};
        for (const auto& [thread, count] : WakeUps(trial)) {
            const auto earlier = before.find(thread);
            const long more = count - (earlier == before.end() ? 0 : earlier->second);
            (thread == trial.Id() ? cost.PanelWakeUps : cost.VoiceWakeUps) += static_cast<double>(more) / time;
        }
        return cost;
    }
};

}  // namespace

TEST_F(CostTest, SleepsWhileItIsOffAndCostsLittleInThreeRooms) {
    Trial trial(0);
    probe.Record(Microphone(1));
    trial.Say("stop");
    ASSERT_TRUE(WaitUntil([&] { return InStatus(Files(trial), "Threads") == 1; }));
    ASSERT_TRUE(Pass(1));
    const auto before = WakeUps(trial);
    const long memoryOff = InStatus(Files(trial), "VmRSS");
    ASSERT_TRUE(Pass(2));
    EXPECT_EQ(WakeUps(trial), before) << "while it is off";

    trial.Say("start");
    ASSERT_TRUE(trial.Await("started"));
    for (int room = 0; room < 3; ++room)
        ASSERT_TRUE(trial.Join(room, server.Room("cost" + std::to_string(room)))) << trial.Told();
    ASSERT_TRUE(Pass(3));  // until the outputs rest
    const Cost silent = CostWhile(trial, 5);
    probe.Play(Mouth(0), pulse::Tone(BurstHertz, 1000), pulse::Playing::AgainAndAgain);
    for (int room = 0; room < 3; ++room) trial.Say("mute " + std::to_string(room) + " 0");
    const Cost talking = CostWhile(trial, 5);
    const long memoryOn = InStatus(Files(trial), "VmRSS");
    std::cout << "three rooms: silent " << silent.Percent << " % of a core and " << silent.VoiceWakeUps
              << " wake-ups a second, talking " << talking.Percent << " % and " << talking.VoiceWakeUps << "; memory "
              << memoryOff << " kB off, " << memoryOn << " kB on\n";
    for (const Cost& cost : {silent, talking}) {
        EXPECT_LT(cost.VoiceWakeUps, WakeUpsExpected * Leeway);
        EXPECT_LT(cost.PanelWakeUps, PanelWakeUpsExpected * Leeway);
    }
    EXPECT_LT(silent.Percent, 5);
    EXPECT_LT(talking.Percent, 10);
    EXPECT_LT(memoryOn, 64 * 1024);
}

}  // namespace orvelle::heard
