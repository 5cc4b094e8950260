// The fuzz target of FlightGear's lines: any bytes as one, and what is one step away from each. What is read of it must
// be a state that can be. At the end it tells how many were refused.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "simulators/flightgear/FlightGearText.h"
#include "tests/fuzz/Breach.h"
#include "tests/fuzz/SimulatorStates.h"

namespace orvelle::simulators {

namespace {

constexpr double HighestAltitude = 1e9;  // feet
constexpr std::size_t Neighbours = 16;

fuzz::Counts& Tried() {
    static fuzz::Counts counts("lines");
    return counts;
}

void HoldLine(std::string_view line) {
    const std::optional<FlightGearWords> words = ReadFlightGearLine(line);
    Tried().Count(words.has_value());
    if (!words) return;
    HoldState(words->State, HighestAltitude);
    fuzz::Hold(words->State.Callsign.size() <= 3 * line.size(), "a callsign is made up");
    for (const auto& [name, value] : words->Others)
        fuzz::Hold(line.find(name + "=") != std::string_view::npos, "a member is made up");
}

}  // namespace

}  // namespace orvelle::simulators

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace orvelle;
    const std::string_view line = fuzz::TextOf(bytes, count);
    simulators::HoldLine(line);
    fuzz::ReadNeighbours(line, simulators::Neighbours, simulators::HoldLine);
    return 0;
}
