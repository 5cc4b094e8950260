// What is FlightGear's on this computer: the aircraft whose panels work differently, the user's own before those that
// are installed, and the options that make it send its lines. For whoever reads FlightGear or sets it up. X-Plane's
// aircraft stand in the same files.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "simulators/AircraftOverrides.h"
#include "simulators/flightgear/FlightGearOptions.h"

namespace orvelle {

struct FlightGearSetting {
    // `data` is the user's data folder. The protocol file that the aircraft need is at its place after this.
    FlightGearSetting(const std::filesystem::path& data, std::uint16_t port);

    simulators::AircraftOverrides Aircraft;
    simulators::FlightGearOptions Options;
    std::vector<std::string> Troubles;  // a sentence each, for the user
};

}  // namespace orvelle
