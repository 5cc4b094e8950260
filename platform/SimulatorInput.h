// What is held on the simulator's computer at one moment. The far side of the simulator link tells it whole, with each
// change of it; what has changed since the moment before is for the reader to find.
#pragma once

#include <string>
#include <vector>

namespace orvelle {

struct SimulatorInput {
    bool Active = true;                // the simulator is the active application over there
    std::vector<std::string> Keys;     // held now, in the order in which they went down
    std::vector<std::string> Buttons;  // likewise, each as device and button: "Stick.Button 3"
    std::string Repeat;                // a held key that repeats with this message; "" for none
};

}  // namespace orvelle
