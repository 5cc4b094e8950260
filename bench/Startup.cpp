// orvelle-startup PROGRAM [RUNS [SECONDS [ROWS]]]: starts a program on the display, RUNS times after one that doesn't
// count, and prints for each figure the least, the median and the greatest: the time from its start to its first mapped
// window, then, once it has come to rest, its memory, and what it does in SECONDS of rest. With ROWS the settings are
// given so many rows in each mapping table first. bench/startup runs it.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "adapters/store/SqliteStore.h"
#include "bench/MappingRows.h"
#include "bench/ProgramStart.h"
#include "tests/shared/HandLoop.h"

namespace orvelle {

namespace {

void Print(const Figures& figures) {
    std::printf("%-36s %10s %10s %10s\n", "", "min", "median", "max");
    for (const auto& [name, values] : figures)
        std::printf("%-36s %10.1f %10.1f %10.1f\n", name.c_str() + 2, std::ranges::min(values), Median(values),
                    std::ranges::max(values));
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
    MeasureOneStart(path, 0, warmUp);
    Figures figures;
    for (int run = 0; run < runs; ++run) {
        WaitForQuietComputer();
        MeasureOneStart(path, idleSeconds, figures);
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
