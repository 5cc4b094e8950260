// Aircraft whose panels work differently: which properties of FlightGear, or datarefs of X-Plane, tell there what is
// heard and where the user talks, and in X-Plane what has power. Read from a JSON file, "orvelle-aircraft/1"; one is
// installed with the program (packaging/flightgear/aircraft.json), and the user's own (aircraft.json in the data
// folder) comes before it. FlightGear sends the properties that it names as members of its lines, by the protocol file
// that is made with it; X-Plane is asked for the datarefs.
//
//   {"format": "orvelle-aircraft/1", "aircraft": [
//     {"simulator": "flightgear", "names": ["c172p*"],
//      "transmits": {"property": "/instrumentation/kma20/knob", "values": {"-1": 1, "0": 2, "1": 0}},
//      "heard": [{"property": "/instrumentation/kma20/com1"}, {"property": "/instrumentation/kma20/com2"}],
//      "auto": {"property": "/instrumentation/kma20/auto"}},
//     {"simulator": "xplane", "names": ["C172"],
//      "power": [{"dataref": "maker/radios/com1_on"}, {"dataref": "maker/radios/com2_on"}],
//      "transmits": {"dataref": "maker/radios/selector", "values": {"1": 1, "2": 2}},
//      "heard": [null, {"dataref": "maker/radios/hears_com2"}], "auto": {"dataref": "maker/radios/auto[0]"}}]}
//
// A part that is missing, or null in a list, leaves the usual rule.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "simulators/SimulatorState.h"

namespace orvelle::simulators {

enum class AircraftOf { FlightGear, XPlane };

struct AircraftOverride {
    AircraftOf Simulator = AircraftOf::FlightGear;
    std::vector<std::string> Names;             // of aircraft, * stands for any characters
    std::array<std::string, 2> Power;           // properties, true where the radio works; "" for the usual rule
    std::string Transmits;                      // the property that tells it, "" for the usual one
    std::map<std::string, int> TransmitValues;  // what it holds, and the radio that this means; any other is none
    std::array<std::string, 2> Heard;           // properties, true where the radio is heard; "" for the usual rule
    std::string Auto;                           // true where the radio of Transmits is heard anyway; "" for never
};

class AircraftOverrides {
public:
    AircraftOverrides() = default;

    // Adds those of a file (AircraftFile.h); they come after those that are there. "" for success, or where there is no
    // file, else one sentence that names the file and its line; nothing of it counts then.
    std::string Add(const std::filesystem::path& file);

    // The properties or datarefs that the simulator must tell, each once.
    std::vector<std::string> Properties(AircraftOf simulator) const;
    // What a property holds, "" where that isn't told.
    using Told = std::function<std::string(const std::string& property)>;
    // The state as the aircraft's panel means it. A property that isn't told, as by an older protocol file, changes
    // nothing; a radio that isn't operable is not heard whatever its property tells.
    SimulatorState Apply(AircraftOf simulator, SimulatorState state, const Told& told) const;

private:
    std::vector<AircraftOverride> overrides;
};

}  // namespace orvelle::simulators
