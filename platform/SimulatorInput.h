// What is held down on the simulator's computer, all of it at one moment: what a line of the simulator link says after
// each change. Keys bear the names that the panel shows ("Ctrl", "A", "F8"), buttons the device and the button
// ("Stick.Button 3"). No name is empty or there twice.
#pragma once

#include <string>
#include <vector>

namespace orvelle {

struct SimulatorInput {
    bool Active = true;                // the simulator is the active application there
    std::vector<std::string> Keys;     // held now, in the order in which they went down
    std::vector<std::string> Buttons;  // likewise
    std::string Repeat;                // a held key that repeats by this message, "" for none
    bool operator==(const SimulatorInput&) const = default;
};

}  // namespace orvelle
