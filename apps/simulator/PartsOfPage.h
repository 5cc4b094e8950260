// The simulator's page joined to what reads simulators and directories.
#pragma once

#include "apps/SimulatorParts.h"
#include "apps/simulator/SimulatorPage.h"

namespace orvelle {

// Both outlive the page.
SimulatorPageParts PartsOfPage(SimulatorParts& parts, const NetworkSide& network);

}  // namespace orvelle
