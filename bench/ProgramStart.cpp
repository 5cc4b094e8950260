#include "bench/ProgramStart.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "bench/ProcessFigures.h"
#include "bench/WindowWatch.h"

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
    explicit StartedProgram(const std::string& command) {
        std::istringstream text(command);
        std::vector<std::string> words{std::istream_iterator<std::string>(text), {}};
        std::vector<char*> arguments;
        for (std::string& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        if (posix_spawnp(&process, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0)
            throw std::runtime_error(command + " can't be started");
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

// Waits until the program sleeps a second through, or nearly so.
void WaitForRest(pid_t process) {
    for (int waited = 0; waited < QuietLimit; ++waited) {
        const Activity before = ReadActivity(process);
        std::this_thread::sleep_for(seconds(1));
        if (ReadActivity(process).WakeUps - before.WakeUps <= 1) return;
    }
    std::cerr << "Warning: the program does not come to rest\n";
}

}  // namespace

void WaitForQuietComputer() {
    for (int waited = 0; waited < QuietLimit; ++waited) {
        const CpuTime before = ReadCpuTime();
        std::this_thread::sleep_for(seconds(1));
        const CpuTime after = ReadCpuTime();
        if ((after.Idle - before.Idle) >= 0.9 * (after.All - before.All)) return;
    }
    std::cerr << "Warning: the computer is busy with other work\n";
}

void MeasureOneStart(const std::string& command, int idleSeconds, Figures& figures) {
    WindowWatch watch;
    const auto start = SteadyClock::now();
    StartedProgram program(command);
    while (!watch.MappedOne(program.Id())) {
        if (program.HasEnded()) throw std::runtime_error(command + " ended without a window");
        if (SteadyClock::now() - start > StartLimit) throw std::runtime_error(command + " showed no window");
        watch.Wait();
    }
    const std::chrono::duration<double, std::milli> shown = SteadyClock::now() - start;
    const double used = ReadActivity(program.Id()).CpuMilliseconds;

    WaitForRest(program.Id());
    const Memory memory = ReadMemory(program.Id());
    const Activity before = ReadActivity(program.Id());
    std::this_thread::sleep_for(seconds(idleSeconds));
    const Activity after = ReadActivity(program.Id());
    if (program.HasEnded()) throw std::runtime_error(command + " ended by itself");

    const std::string idle = " in " + std::to_string(idleSeconds) + " s";
    figures["1 first window, ms"].push_back(shown.count());
    figures["2 CPU time until then, ms"].push_back(used);
    figures["3 resident memory (RSS), MiB"].push_back(memory.Resident);
    figures["4 proportional memory (PSS), MiB"].push_back(memory.Proportional);
    figures["5 memory of its own, MiB"].push_back(memory.Private);
    figures["6 wake-ups" + idle].push_back(after.WakeUps - before.WakeUps);
    figures["7 involuntary switches" + idle].push_back(after.Preemptions - before.Preemptions);
    figures["8 CPU time" + idle + ", ms"].push_back(after.CpuMilliseconds - before.CpuMilliseconds);
}

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

}  // namespace orvelle
