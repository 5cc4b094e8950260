// The text of a file of aircraft, "orvelle-aircraft/1", as AircraftOverrides tells it. Nothing throws.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "simulators/AircraftOverrides.h"

namespace orvelle::simulators {

constexpr std::size_t LongestAircraftFile = 256 * 1024;  // bytes

struct ReadAircraft {
    std::vector<AircraftOverride> Overrides;  // those of simulators that aren't known are passed over
    std::size_t Line = 0;                     // of the first mistake, from 1
    std::string Sentence;                     // what is wrong there, "" for nothing
};

ReadAircraft ReadAircraftFile(std::string_view text);

}  // namespace orvelle::simulators
