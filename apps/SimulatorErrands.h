// What orvelle-sim does beside a running one or none, and then ends: adding, listing and removing computers, giving the
// set-up another name, checking directories, FlightGear's options (FlightGearErrand), and telling of itself.
#pragma once

#include "apps/SimulatorCommand.h"

namespace orvelle {

// The exit status, 0 or 1; what there is to say is said on standard output, why it failed on standard error. A command
// to serve only gives the set-up its name.
int RunErrand(const SimulatorCommand& command);

// Whether an orvelle-sim serves this set-up now.
bool IsServed(const SimulatorCommand& command);

}  // namespace orvelle
