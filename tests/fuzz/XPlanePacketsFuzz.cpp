// The fuzz target of X-Plane's packets: the first byte chooses the beacon, one packet of values, or several that come
// one after the other; the rest is what it reads. What is taken must be within the bounds, and the state that it comes
// to one that can be. At the end it tells how many packets were refused.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "adapters/shared/Utf8.h"
#include "simulators/xplane/XPlanePackets.h"
#include "simulators/xplane/XPlaneValues.h"
#include "tests/fuzz/Breach.h"
#include "tests/fuzz/SimulatorStates.h"

namespace orvelle::simulators {

namespace {

constexpr std::size_t HeadLength = 5;
constexpr std::size_t PairLength = 8;
constexpr std::size_t BeaconLength = 21;
constexpr std::size_t LongestName = 500;
constexpr double HighestAltitude = 1e6;  // feet

using fuzz::Hold;

fuzz::Counts& Tried() {
    static fuzz::Counts counts("packets");
    return counts;
}

void HoldBeacon(std::string_view packet) {
    const std::optional<Beacon> beacon = ReadBeacon(packet);
    Tried().Count(beacon.has_value());
    if (!beacon) return;
    Hold(packet.size() >= BeaconLength, "a beacon is cut");
    Hold(beacon->Port != 0, "a beacon has no port");
    Hold(beacon->Name.size() <= LongestName && IsUtf8(beacon->Name), "a name is none");
    Hold(beacon->Name.find('\0') == std::string::npos, "a name goes beyond its end");
}

std::optional<std::vector<NumberedValue>> HoldValues(std::string_view packet) {
    std::optional<std::vector<NumberedValue>> values = ReadValues(packet);
    Tried().Count(values.has_value());
    if (!values) return values;
    Hold(packet.size() <= HeadLength + MostValuesInPacket * PairLength, "a packet is too long");
    Hold(HeadLength + values->size() * PairLength <= packet.size(), "values are made up");
    std::string again = "RREF,";
    for (const auto& [number, value] : *values) {
        Hold(std::isfinite(value), "a value is no number");
        char pair[PairLength];
        std::memcpy(pair, &number, sizeof(number));
        std::memcpy(pair + sizeof(number), &value, sizeof(value));
        again.append(pair, sizeof(pair));
    }
    Hold(values->empty() || ReadValues(again) == values, "values are read as others");
    return values;
}

// Each packet begins with its count of pairs; their numbers are small ones, so that they are mostly asked for.
void HoldSeveral(std::string_view bytes) {
    XPlaneValues values;
    while (!bytes.empty()) {
        const std::size_t length =
            std::min<std::size_t>(static_cast<unsigned char>(bytes[0]) * PairLength, bytes.size() - 1);
        std::string packet = "RREF," + std::string(bytes.substr(1, length));
        for (std::size_t pair = HeadLength; pair + 4 <= packet.size(); pair += PairLength)
            std::fill(packet.begin() + static_cast<std::ptrdiff_t>(pair) + 1,
                      packet.begin() + static_cast<std::ptrdiff_t>(pair) + 4, '\0');
        bytes.remove_prefix(1 + length);
        const std::optional<std::vector<NumberedValue>> told = HoldValues(packet);
        if (told) Hold(values.Take(*told) <= told->size(), "more values are taken than told");
        HoldState(values.State(), HighestAltitude);
    }
}

}  // namespace

}  // namespace orvelle::simulators

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace orvelle::simulators;
    if (count == 0) return 0;
    const std::string_view rest = orvelle::fuzz::TextOf(bytes + 1, count - 1);
    switch (bytes[0] % 3) {
        case 0:
            HoldBeacon(rest);
            break;
        case 1: {
            XPlaneValues values;
            if (const auto told = HoldValues(rest)) values.Take(*told);
            HoldState(values.State(), HighestAltitude);
            break;
        }
        default:
            HoldSeveral(rest);
    }
    return 0;
}
