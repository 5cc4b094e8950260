// orvelle-startup PROGRAM [RUNS [SECONDS [ROWS]]]: starts a program on the display, RUNS times after one that doesn't
// count, and prints for each figure the least, the median and the greatest: the time from its start to its first mapped
// window, then, once it has come to rest, its memory, and what it does in SECONDS of rest. With ROWS the settings are
// given so many rows in each mapping table first. bench/startup runs it.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "adapters/store/SqliteStore.h"
#include "bench/MappingRows.h"
#include "bench/ProcessFigures.h"
#include "bench/WindowWatch.h"
#include "tests/shared/HandLoop.h"

namespace orvelle {

namespace {

using SteadyClock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds StartLimit{30'000};
constexpr milliseconds EndLimit{5'000};
constexpr int QuietLimit = 60;  // seconds

// A started program, ended with this object.
class StartedProgram {
public:
    explicit StartedProgram(const std::string& path) {
        std::string name = path;
        char* arguments[] = {name.data(), nullptr};
        if (posix_spawn(&process, path.c_str(), nullptr, nullptr, arguments, environ) != 0)
            throw std::runtime_error(path + " can't be started");
    }
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;
    ~StartedProgram() {
        kill(process, SIGTERM);
        const auto limit = SteadyClock::now() + EndLimit;
        while (!HasEnded()) {
            if (SteadyClock::now() > limit) kill(process, SIGKILL);
            std::this_thread::sleep_for(milliseconds(20));
        }
    }

    pid_t Id() const { return process; }
    bool HasEnded() {
        ended = ended || waitpid(process, nullptr, WNOHANG) == process;
        return ended;
    }

private:
    pid_t process = 0;
    bool ended = false;
};

using Figures = std::map<std::string, std::vector<double>>;

// Waits for a second in which the computer has little else to do.
void WaitForQuietComputer() {
    for (int waited = 0; waited < QuietLimit; ++waited) {
        const CpuTime before = ReadCpuTime();
        std::this_thread::sleep_for(seconds(1));
        const CpuTime after = ReadCpuTime();
        if ((after.Idle - before.Idle) >= 0.9 * (after.All - before.All)) return;
    }
    std::cerr << "Warning: the computer is busy with other work\n";
}

// Waits until the program sleeps a second through, or nearly so.
void WaitForRest(pid_t process) {
    for (int waited = 0; waited < QuietLimit; ++waited) {
        const Activity before = ReadActivity(process);
        std::this_thread::sleep_for(seconds(1));
        if (ReadActivity(process).WakeUps - before.WakeUps <= 1) return;
    }
    std::cerr << "Warning: the program does not come to rest\n";
}

void MeasureOnce(const std::string& path, int idleSeconds, Figures& figures) {
    WindowWatch watch;
    const auto start = SteadyClock::now();
    StartedProgram program(path);
    while (!watch.MappedOne(program.Id())) {
        if (program.HasEnded()) throw std::runtime_error(path + " ended without a window");
        if (SteadyClock::now() - start > StartLimit) throw std::runtime_error(path + " showed no window");
        watch.Wait();
    }
    const std::chrono::duration<double, std::milli> shown = SteadyClock::now() - start;

    WaitForRest(program.Id());
    const Memory memory = ReadMemory(program.Id());
    const Activity before = ReadActivity(program.Id());
    std::this_thread::sleep_for(seconds(idleSeconds));
    const Activity after = ReadActivity(program.Id());
    if (program.HasEnded()) throw std::runtime_error(path + " ended by itself");

    const std::string idle = " in " + std::to_string(idleSeconds) + " s";
    figures["1 first window, ms"].push_back(shown.count());
    figures["2 resident memory (RSS), MiB"].push_back(memory.Resident);
    figures["3 proportional memory (PSS), MiB"].push_back(memory.Proportional);
    figures["4 wake-ups" + idle].push_back(after.WakeUps - before.WakeUps);
    figures["5 involuntary switches" + idle].push_back(after.Preemptions - before.Preemptions);
    figures["6 CPU time" + idle + ", ms"].push_back(after.CpuMilliseconds - before.CpuMilliseconds);
}

void Print(Figures& figures) {
    std::printf("%-36s %10s %10s %10s\n", "", "min", "median", "max");
    for (auto& [name, values] : figures) {
        std::sort(values.begin(), values.end());
        std::printf("%-36s %10.1f %10.1f %10.1f\n", name.c_str() + 2, values.front(), values[values.size() / 2],
                    values.back());
    }
}

// Where the panel looks for its settings.
void PrepareSettings(int rows) {
    const char* const folder = std::getenv("XDG_DATA_HOME");
    if (folder == nullptr) throw std::runtime_error("XDG_DATA_HOME is not set");
    HandLoop loop;
    store::SqliteStore store(loop, std::filesystem::path(folder) / "OrvelleCP" / "settings.sqlite",
                             [](const std::string& sentence) { throw std::runtime_error(sentence); });
    SaveMappingRows(store, rows);
}

void Measure(const std::string& path, int runs, int idleSeconds) {
    Figures warmUp;
    MeasureOnce(path, 0, warmUp);
    Figures figures;
    for (int run = 0; run < runs; ++run) {
        WaitForQuietComputer();
        MeasureOnce(path, idleSeconds, figures);
    }
    Print(figures);
}

}  // namespace

}  // namespace orvelle

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.empty() || arguments.size() > 4) {
        std::cerr << "usage: orvelle-startup PROGRAM [RUNS [SECONDS [ROWS]]]\n";
        return 2;
    }
    try {
        const int runs = arguments.size() > 1 ? std::max(1, std::stoi(arguments[1])) : 5;
        const int idleSeconds = arguments.size() > 2 ? std::max(0, std::stoi(arguments[2])) : 10;
        if (arguments.size() > 3) orvelle::PrepareSettings(std::stoi(arguments[3]));
        orvelle::Measure(arguments[0], runs, idleSeconds);
    } catch (const std::exception& error) {
        std::cerr << "orvelle-startup: " << error.what() << "\n";
        return 1;
    }
}
