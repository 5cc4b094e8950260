// The voice engine's devices by their numbers, for the user to read.
#pragma once

#include <QString>
#include <string>
#include <vector>

#include "platform/Types.h"

namespace orvelle::deck {

// -1 is the system's default device; a number without a name is told as such.
QString DeviceName(const std::vector<std::string>& names, Long device);

}  // namespace orvelle::deck
