// orvelle-wake-ups SECONDS NAME=PROCESS...: how often each of the processes woke in that time, its descendants left
// out, and what that cost. bench/idle runs it.
#include <chrono>
#include <cstdio>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "bench/ProcessFigures.h"

namespace orvelle {

namespace {

struct Watched {
    explicit Watched(const std::string& argument) {
        const std::size_t sign = argument.find('=');
        if (sign == std::string::npos) throw std::runtime_error("usage: orvelle-wake-ups SECONDS NAME=PROCESS...");
        Name = argument.substr(0, sign);
        Process = std::stoi(argument.substr(sign + 1));
    }

    std::string Name;
    pid_t Process;
    Activity Before;
};

void Measure(const std::vector<std::string>& arguments) {
    std::vector<Watched> watched;
    for (std::size_t index = 1; index < arguments.size(); ++index) watched.emplace_back(arguments[index]);
    for (Watched& each : watched) each.Before = ReadActivityOfOne(each.Process);
    const int seconds = std::stoi(arguments.at(0));
    std::this_thread::sleep_for(std::chrono::seconds(seconds));
    std::printf("%-20s %10s %10s %10s\n", "", "wake-ups", "a second", "CPU, ms");
    for (const Watched& each : watched) {
        const Activity after = ReadActivityOfOne(each.Process);
        const double wakeUps = after.WakeUps - each.Before.WakeUps;
        std::printf("%-20s %10.0f %10.2f %10.1f\n", each.Name.c_str(), wakeUps, wakeUps / seconds,
                    after.CpuMilliseconds - each.Before.CpuMilliseconds);
    }
}

}  // namespace

}  // namespace orvelle

int main(int argc, char** argv) {
    try {
        orvelle::Measure({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "orvelle-wake-ups: " << error.what() << "\n";
        return 1;
    }
}
