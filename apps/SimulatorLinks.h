// The two links as this computer offers them and as they are served, each told by a sign and words: for the window of
// the simulator's program and its icon's tip.
#pragma once

#include <QString>
#include <string>

#include "adapters/looks/Signs.h"
#include "adapters/mqtt/OfferedLink.h"

namespace orvelle {

class SimulatorProgram;

struct LinkTold {
    Sign Shown = Sign::Off;
    QString Words;
};

LinkTold TellOfLink(const SimulatorProgram& program, const mqtt::OfferedLink& link);

// Another computer's word as it is shown: on one line, and no longer than a name should be.
QString ShownName(const std::string& name);

// "c07 COCKPIT2"; a computer that isn't there has no name.
QString NameOf(const SimulatorProgram& program, int identity);

// How many computers have a program that is there, this one included.
int ComputersThere(const SimulatorProgram& program);

}  // namespace orvelle
