// What is FlightGear's on this computer: the aircraft whose panels work differently, the user's own before those that
// are installed, and the options that make it send its lines. For whoever reads FlightGear or sets it up.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "simulators/flightgear/AircraftOverrides.h"
#include "simulators/flightgear/FlightGearOptions.h"

namespace orvelle {

struct FlightGearSetting {
    // `data` is the user's data folder. The protocol file that the aircraft need is at its place after this.
    explicit FlightGearSetting(const std::filesystem::path& data);

    simulators::AircraftOverrides Aircraft;
    simulators::FlightGearOptions Options;
    std::vector<std::string> Troubles;  // a sentence each, for the user
};

}  // namespace orvelle
