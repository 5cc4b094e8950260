// orvelle-records [RUNS]: what it costs a panel that comes to a set-up to take in the records of the others, from the
// opening of its link until it was told of all of them, over a real broker on this computer. The ratio of four times as
// many records is a figure, too. Needs no display.
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <list>
#include <string>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mqtt/SimulatorAtBroker.h"
#include "bench/FrameworkPanel.h"
#include "platform/VoiceRoles.h"
#include "tests/linux/ChildProcess.h"
#include "tests/mqtt/broker/BrokerProcess.h"

namespace orvelle {

namespace {

constexpr int ComingComputer = 9;
constexpr int FirstOwner = 2;
constexpr int Owners = 4;
constexpr Long LongestWait = 30'000;  // milliseconds

RecordContent RecordOfRole(int number) {
    RecordContent record{VoiceRecordType, "Role " + std::to_string(number), {}};
    for (Long index = 0; index < 8; ++index) record.Parameters.Numbers[index] = index + 1;
    record.Parameters.Texts[7] = "voice.example/tower";
    record.Parameters.Texts[8] = "a room of some length, as rooms are called";
    return record;
}

mqtt::PresenceSetting Described() { return {.Name = "OWNER", .Address = "127.0.0.1", .Desktop = "none"}; }

// Plays the others until it is killed: the simulator's program, and the panels whose records these are.
int PlayOthers(int records, const std::vector<std::string>& setUps) {
    linux::PollEventLoop loop;
    mqtt::SimulatorAtBroker simulator(loop, Described);
    simulator.Offer(&mqtt::PresenceSetting::OffersFramework, true);
    simulator.Open(*mqtt::ReadSetUp(setUps.front()));
    std::list<mqtt::PanelAtBroker> panels;
    for (int owner = 0; owner < Owners; ++owner) {
        const mqtt::SetUpSetting setUp = *mqtt::ReadSetUp(setUps[static_cast<std::size_t>(owner) + 1]);
        mqtt::PanelAtBroker& panel = panels.emplace_back(loop, Described);
        for (int number = owner; number < records; number += Owners)
            panel.SayRecord(number / Owners + 1, RecordOfRole(number));
        panel.Open(setUp, {setUp.Host, setUp.Port});
    }
    loop.Run();
    return 0;
}

struct Cost {
    double Milliseconds = 0;
    double CpuMilliseconds = 0;
    double Sleeps = 0;
    bool IsWhole = false;
};

struct Moment {
    std::chrono::steady_clock::time_point Now = std::chrono::steady_clock::now();
    std::clock_t Cpu = std::clock();
    long Sleeps = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_nvcsw;
    }();
};

// With all roles of its own, which must be compared with those of the others.
Cost Come(const mqtt::SetUpSetting& setUp, int records) {
    linux::PollEventLoop loop;
    FrameworkPanel panel(loop, setUp);
    std::size_t told = 0;
    Cost cost;
    const Moment begin;
    panel.End.InterfaceAppeared = [&](Long) {
        if (++told < static_cast<std::size_t>(records) + AllVoiceRoles.size()) return;
        const Moment end;
        cost.Milliseconds = std::chrono::duration<double, std::milli>(end.Now - begin.Now).count();
        cost.CpuMilliseconds = 1e3 * static_cast<double>(end.Cpu - begin.Cpu) / CLOCKS_PER_SEC;
        cost.Sleeps = static_cast<double>(end.Sleeps - begin.Sleeps);
        cost.IsWhole = true;
        loop.Stop();
    };
    panel.End.LinkStart();
    for (const char* const role : AllVoiceRoles) panel.End.CreateInterface(VoiceRecordType, role);
    const Ticket patience = loop.After(LongestWait, [&] { loop.Stop(); });
    loop.Run();
    panel.SayGoodbye();
    return cost;
}

void PrintRow(const char* name, std::vector<Cost>& costs, double Cost::*figure) {
    std::ranges::sort(costs, {}, figure);
    std::printf("    %-28s %8.1f %8.1f %8.1f\n", name, costs.front().*figure, costs[costs.size() / 2].*figure,
                costs.back().*figure);
}

bool Measure(const std::string& self, int records, int runs) {
    const mqtt::BrokerProcess broker;
    std::vector<std::string> others{self, "others", std::to_string(records), mqtt::WriteSetUp(broker.SetUpOf(1))};
    for (int owner = 0; owner < Owners; ++owner) others.push_back(mqtt::WriteSetUp(broker.SetUpOf(FirstOwner + owner)));
    const linux::ChildProcess played(others);
    std::vector<Cost> costs;
    // The first run waits for the others, too, and counts for nothing.
    for (int run = 0; run <= runs; ++run) {
        const Cost cost = Come(broker.SetUpOf(ComingComputer), records);
        if (!cost.IsWhole) return false;
        if (run > 0) costs.push_back(cost);
    }
    std::printf("%-32s %8s %8s %8s\n", (std::to_string(records) + " records").c_str(), "least", "median", "greatest");
    PrintRow("until all were told, ms", costs, &Cost::Milliseconds);
    PrintRow("of the processor, ms", costs, &Cost::CpuMilliseconds);
    PrintRow("times it slept", costs, &Cost::Sleeps);
    return true;
}

}  // namespace

}  // namespace orvelle

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() > 2 && arguments[0] == "others")
        return orvelle::PlayOthers(std::stoi(arguments[1]), {arguments.begin() + 2, arguments.end()});
    const int runs = arguments.empty() ? 20 : std::max(1, std::stoi(arguments[0]));
    for (const int records : {200, 800})
        if (!orvelle::Measure(argv[0], records, runs)) {
            std::cerr << "orvelle-records: not all of the records came\n";
            return 1;
        }
}
