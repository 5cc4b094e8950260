// What the panel is told of the simulator's computer.
#pragma once

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

namespace orvelle {
class SimulatorSide;
}  // namespace orvelle

namespace orvelle::deck {

class TextField;

class ComputerBox : public Section {
public:
    explicit ComputerBox(SimulatorSide& simulatorSide);

private:
    void ShowState();

    SimulatorSide& simulator;
    TextField* address;
    TextField* name;
    TextField* desktop;
    Ticket watch;
};

}  // namespace orvelle::deck
