// What orvelle-sim does beside a running one or none, and then ends: adding, listing and removing computers.
#pragma once

#include "apps/SimulatorCommand.h"

namespace orvelle {

// The exit status, 0 or 1; what there is to say is said on standard output, why it failed on standard error.
int RunErrand(const SimulatorCommand& command);

}  // namespace orvelle
