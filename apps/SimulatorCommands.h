// The commands of the simulator's program that change or show the set-up and end at once: one line for each answer,
// beside a running program or none.
#pragma once

#include <string>

#include "adapters/mqtt/OwnSetUp.h"

namespace orvelle {

// What a command answers: the program's exit status, and what goes to standard output or, where it failed, to standard
// error.
struct CommandAnswer {
    int Status = 0;
    std::string Text;
};

// Makes the set-up where there is none, `port` for its broker. The code alone.
CommandAnswer AddComputer(const mqtt::OwnSetUp& setUp, const std::string& name, int port);
// A line for each computer.
CommandAnswer ListComputers(const mqtt::OwnSetUp& setUp);
// `identity` as "c07".
CommandAnswer RemoveComputer(const mqtt::OwnSetUp& setUp, const std::string& identity);

}  // namespace orvelle
