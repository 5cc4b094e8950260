// Aircraft whose panels work differently: which properties tell there what is heard and where the user talks. Read from
// a JSON file, "orvelle-aircraft/1"; one is installed with the program (packaging/flightgear/aircraft.json), and the
// user's own (aircraft.json in the data folder) comes before it. The properties that it names are sent as members of
// the lines, by the protocol file that is made with it.
//
//   {"format": "orvelle-aircraft/1", "aircraft": [
//     {"simulator": "flightgear", "names": ["c172p*"],
//      "transmits": {"property": "/instrumentation/kma20/knob", "values": {"1": 1, "2": 2}},
//      "heard": [{"property": "/instrumentation/kma20/com1"}, {"property": "/instrumentation/kma20/com2"}]}]}
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "simulators/flightgear/FlightGearText.h"

namespace orvelle::simulators {

struct AircraftOverride {
    std::vector<std::string> Names;             // of aircraft, * stands for any characters
    std::string Transmits;                      // the property that tells it, "" for the usual one
    std::map<std::string, int> TransmitValues;  // what it holds, and the radio that this means, 0 for none
    std::array<std::string, 2> Heard;           // properties, true where the radio is heard; "" for the usual rule
};

class AircraftOverrides {
public:
    AircraftOverrides() = default;

    // Adds those of a file; they come after those that are there. "" for success, or where there is no file, else one
    // sentence that names the file and its line; nothing of it counts then.
    std::string Add(const std::filesystem::path& file);

    // The properties that a line must hold, in the order of their members X1, X2 ...
    std::vector<std::string> Properties() const;
    // The state as the aircraft's panel means it.
    SimulatorState Apply(const FlightGearWords& words) const;

private:
    std::vector<AircraftOverride> overrides;
};

}  // namespace orvelle::simulators
