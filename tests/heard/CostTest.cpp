// What our engine costs: while it is off, in three rooms in silence, and while it talks in all of them.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "tests/heard/EngineRig.h"

namespace orvelle::heard {

using linux::WaitUntil;

namespace {

constexpr std::size_t Second = 48000;  // of samples, by which the time is told here

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
    static long WakeUps(const Trial& trial) {
        long sum = 0;
        for (const auto& thread : std::filesystem::directory_iterator(Files(trial) / "task"))
            sum += InStatus(thread.path(), "voluntary_ctxt_switches");
        return sum;
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
    double PercentWhile(const Trial& trial, std::size_t seconds) {
        const double before = ProcessorSeconds(trial);
        EXPECT_TRUE(Pass(seconds));
        return (ProcessorSeconds(trial) - before) / static_cast<double>(seconds) * 100;
    }
};

}  // namespace

TEST_F(CostTest, SleepsWhileItIsOffAndCostsLittleInThreeRooms) {
    Trial trial(0);
    probe.Record(Microphone(1));
    trial.Say("stop");
    ASSERT_TRUE(WaitUntil([&] { return InStatus(Files(trial), "Threads") == 1; }));
    ASSERT_TRUE(Pass(1));
    const long before = WakeUps(trial);
    const long memoryOff = InStatus(Files(trial), "VmRSS");
    ASSERT_TRUE(Pass(2));
    EXPECT_EQ(WakeUps(trial), before) << "while it is off";

    trial.Say("start");
    ASSERT_TRUE(trial.Await("started"));
    for (int room = 0; room < 3; ++room)
        ASSERT_TRUE(trial.Join(room, server.Room("cost" + std::to_string(room)))) << trial.Told();
    const double silent = PercentWhile(trial, 5);
    probe.Play(Mouth(0), pulse::Tone(BurstHertz, 1000), pulse::Playing::AgainAndAgain);
    for (int room = 0; room < 3; ++room) trial.Say("mute " + std::to_string(room) + " 0");
    const double talking = PercentWhile(trial, 5);
    const long memoryOn = InStatus(Files(trial), "VmRSS");
    std::cout << "three rooms: silent " << silent << " % of a core, talking " << talking << " %; memory " << memoryOff
              << " kB off, " << memoryOn << " kB on\n";
    EXPECT_LT(talking, 20);
    EXPECT_LT(memoryOn, 64 * 1024);
}

}  // namespace orvelle::heard
