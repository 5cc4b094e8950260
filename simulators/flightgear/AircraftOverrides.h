// Aircraft whose panels work differently: which properties tell there what is heard and where the user talks. Read from
// a JSON file, "orvelle-aircraft/1"; one is installed with the program (packaging/flightgear/aircraft.json), and the
// user's own (aircraft.json in the data folder) comes before it. The properties that it names are sent as members of
// the lines, by the protocol file that is made with it.
//
//   {"format": "orvelle-aircraft/1", "aircraft": [
//     {"simulator": "flightgear", "names": ["c172p*"],
//      "transmits": {"property": "/instrumentation/kma20/knob", "values": {"-1": 1, "0": 2, "1": 0}},
//      "heard": [{"property": "/instrumentation/kma20/com1"}, {"property": "/instrumentation/kma20/com2"}],
//      "auto": {"property": "/instrumentation/kma20/auto"}}]}
//
// A part that is missing, or null in "heard", leaves the usual rule.
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
    std::map<std::string, int> TransmitValues;  // what it holds, and the radio that this means; any other is none
    std::array<std::string, 2> Heard;           // properties, true where the radio is heard; "" for the usual rule
    std::string Auto;                           // true where the radio of Transmits is heard anyway; "" for never
};

class AircraftOverrides {
public:
    AircraftOverrides() = default;

    // Adds those of a file; they come after those that are there. "" for success, or where there is no file, else one
    // sentence that names the file and its line; nothing of it counts then.
    std::string Add(const std::filesystem::path& file);

    // The properties that a line must hold, each as a member of its own name.
    std::vector<std::string> Properties() const;
    // The state as the aircraft's panel means it. A property that the line doesn't hold, as one of an older protocol
    // file, changes nothing; a radio that isn't operable is not heard whatever its property tells.
    SimulatorState Apply(const FlightGearWords& words) const;

private:
    std::vector<AircraftOverride> overrides;
};

}  // namespace orvelle::simulators
