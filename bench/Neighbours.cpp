// orvelle-neighbours RUNS SECONDS COMMAND...: starts the programs in turn, RUNS times after once that doesn't count,
// and prints the medians of each: the time to its first mapped window, the processor's time until then, its memory, and
// its wake-ups in SECONDS of rest; and how the others compare with the first. bench/neighbours runs it.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "bench/ProgramStart.h"

namespace orvelle {

namespace {

struct Neighbour {
    std::string Command;
    Figures Measured;
};

void Print(const std::vector<Neighbour>& neighbours) {
    std::printf("%-22s", "medians");
    for (const auto& [name, values] : neighbours.front().Measured) std::printf(" | %s", name.c_str() + 2);
    std::printf("\n");
    for (const auto& [command, measured] : neighbours) {
        std::printf("%-22s", std::filesystem::path(command).filename().c_str());
        for (const auto& [name, values] : measured) {
            const double first = Median(neighbours.front().Measured.at(name));
            const double median = Median(values);
            std::printf(" | %.1f", median);
            if (first > 0 && median > 0) std::printf(" (%.2f)", median / first);
        }
        std::printf("\n");
    }
}

void Measure(std::vector<Neighbour>& neighbours, int runs, int idleSeconds) {
    for (const Neighbour& neighbour : neighbours) {
        Figures warmUp;
        MeasureOneStart(neighbour.Command, 0, warmUp);
    }
    for (int run = 0; run < runs; ++run) {
        WaitForQuietComputer();
        for (Neighbour& neighbour : neighbours) MeasureOneStart(neighbour.Command, idleSeconds, neighbour.Measured);
    }
}

}  // namespace

}  // namespace orvelle

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() < 3) {
        std::cerr << "usage: orvelle-neighbours RUNS SECONDS COMMAND...\n";
        return 2;
    }
    try {
        const int runs = std::max(1, std::stoi(arguments[0]));
        const int idleSeconds = std::max(0, std::stoi(arguments[1]));
        std::vector<orvelle::Neighbour> neighbours;
        for (std::size_t program = 2; program < arguments.size(); ++program)
            neighbours.push_back({arguments[program], {}});
        orvelle::Measure(neighbours, runs, idleSeconds);
        orvelle::Print(neighbours);
    } catch (const std::exception& error) {
        std::cerr << "orvelle-neighbours: " << error.what() << "\n";
        return 1;
    }
}
