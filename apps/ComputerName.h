// This computer's name on its network, as a set-up that it makes is called at first and as the others are told of it.
#pragma once

#include <string>

namespace orvelle {

// "OrvelleCP" where it has none.
std::string ComputerName();

}  // namespace orvelle
