// One line of FlightGear's generic output as orvelle.xml shapes it: members NAME=VALUE parted by commas, the callsign
// last, since it may hold a comma itself:
//
//   COM1=118.305,COM2=121.500,OP1=1,OP2=1,VOL1=0.700,VOL2=0.700,TX=1,PTT=0,ONLINE=1,PAUSED=0,LAT=63.98500,
//   LON=-22.60560,ALT=171.0,/instrumentation/kma20/knob=1,AIRCRAFT=c172p,CS=D-EABC
//
// Members may be missing but for one frequency (MHz), and their order is free but for the last; a volume that is
// missing is one that is heard. Members named by a property are those that overrides of aircraft ask for. What begins
// as no member belongs to the value before it; so numbers have a decimal point or a decimal comma.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "simulators/SimulatorState.h"

namespace orvelle::simulators {

struct FlightGearWords {
    SimulatorState State;
    std::map<std::string, std::string> Others;  // members that are not ours, by their names

    // "" for what the line doesn't hold, and for what FlightGear doesn't have, which it sends as an empty one.
    std::string Other(const std::string& name) const {
        const auto found = Others.find(name);
        return found == Others.end() ? "" : found->second;
    }
};

constexpr std::size_t LongestFlightGearLine = 1024;  // bytes, its end included
constexpr std::size_t LeastCutFlightGearLine = 512;  // from here on a line without its end was cut

// Nothing for a text that is no such line: a frequency, switch or volume that is no number or can't be, no frequency at
// all. A place that can't be is none, and the rest counts. A line that was cut loses its last member. Texts come as
// UTF-8, without control characters.
std::optional<FlightGearWords> ReadFlightGearLine(std::string_view line);

}  // namespace orvelle::simulators
