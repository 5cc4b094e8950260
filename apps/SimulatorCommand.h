// The command line of orvelle-sim.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace orvelle {

struct SimulatorCommand {
    enum class Task { Serve, ServeWithoutWindow, Add, List, Remove, Help, Version };

    Task What = Task::Serve;
    std::filesystem::path Data;  // where all is kept
    int Identity = 0;            // that is removed
    int Port = 0;                // of the broker, 0 for the kept or the usual one
    std::string Host;            // of an existing broker, "" for one of our own

    static const char* Help();
};

struct ReadCommand {
    std::optional<SimulatorCommand> Command;
    std::string Sentence;  // why there is none
};

ReadCommand ReadSimulatorCommand(int count, const char* const* words);

}  // namespace orvelle
