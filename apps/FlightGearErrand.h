// `orvelle-sim flightgear`: the two lines of FlightGear's options, for a person or a script to read, and whether they
// are there and do their work; or they are added or taken out.
#pragma once

#include "apps/SimulatorCommand.h"

namespace orvelle {

// The exit status, 0 or 1. The two lines are alone on standard output; sentences are on standard error.
int RunFlightGearErrand(const SimulatorCommand& command);

}  // namespace orvelle
