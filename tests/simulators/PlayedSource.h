// A simulator that a test plays, as its reader tells of it.
#pragma once

#include <string>
#include <utility>

#include "simulators/SimulatorSource.h"

namespace orvelle::simulators {

class PlayedSource : public SimulatorSource {
public:
    PlayedSource(std::string itsName, std::string itsProgram)
        : name(std::move(itsName)), program(std::move(itsProgram)) {}

    std::string Name() const override { return name; }
    Presence Stands() const override { return presence; }
    int Run() const override { return run; }
    const std::optional<SimulatorState>& State() const override { return state; }
    std::vector<std::string> Programs() const override { return {program, name}; }
    std::string Problem() const override { return ""; }

    // A process of it is there, and has told nothing yet.
    void Begin() {
        ++run;
        state.reset();
        Become(Presence::Busy);
    }
    void Tell(const SimulatorState& next) {
        if (presence == Presence::Absent) ++run;
        state = next;
        Become(Presence::Live);
    }
    void FallSilent() { Become(Presence::Busy); }
    void Go() {
        state.reset();
        Become(Presence::Absent);
    }

private:
    void Become(Presence next) {
        presence = next;
        Changed();
    }

    const std::string name, program;
    Presence presence = Presence::Absent;
    int run = 0;
    std::optional<SimulatorState> state;
};

}  // namespace orvelle::simulators
