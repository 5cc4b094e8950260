// The command line of orvelle-sim.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "adapters/shared/HostAndPort.h"

namespace orvelle {

struct SimulatorCommand {
    enum class Task {
        Serve,
        ServeWithoutWindow,
        Add,
        List,
        Remove,
        Check,
        FlightGear,
        AddFlightGear,
        RemoveFlightGear,
        Help,
        Version
    };

    Task What = Task::Serve;
    std::filesystem::path Data;           // where all is kept
    int Identity = 0;                     // that is removed
    std::string Name;                     // of the set-up from now on, "" for the kept or the usual one
    int Port = 0;                         // of the broker, 0 for the kept or the usual one
    bool Own = false;                     // leaves the set-up of another computer that was joined
    std::optional<HostAndPort> Broker{};  // an existing one in place of one of our own
    std::vector<std::string> Files{};     // that are checked, "-" for standard input

    bool Serves() const { return What == Task::Serve || What == Task::ServeWithoutWindow; }

    bool IsOfFlightGear() const {
        return What == Task::FlightGear || What == Task::AddFlightGear || What == Task::RemoveFlightGear;
    }

    static const char* Help();
};

struct ReadCommand {
    std::optional<SimulatorCommand> Command;
    std::string Sentence;  // why there is none
};

ReadCommand ReadSimulatorCommand(int count, const char* const* words);

}  // namespace orvelle
