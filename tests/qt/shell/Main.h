// The numbers of the run-time errors that the application under test handed on.
#pragma once

#include <vector>

namespace orvelle::qt {

std::vector<int>& Failures();

}  // namespace orvelle::qt
