// What the program of the tests holds as a panel's would: the signals that it takes, and what its application reported
// as errors of handlers.
#pragma once

#include <string>
#include <vector>

#include "platform/qt/EndSignals.h"

namespace orvelle {

EndSignals& TakenSignals();
std::vector<std::string>& Failures();

}  // namespace orvelle
