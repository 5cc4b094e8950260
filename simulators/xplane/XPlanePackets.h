// The packets of X-Plane's UDP interface, as its public documents tell them: the beacon, and subscribing to values
// ("datarefs"). Numbers are little-endian. Nobody has tried this on the real program yet.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvelle::simulators {

constexpr const char* BeaconGroup = "239.255.1.1";
constexpr std::size_t SubscriptionLength = 413;
constexpr std::size_t LongestDataref = 399;  // bytes, and a zero
constexpr std::size_t MostValuesInPacket = 183;

// "BECN\0", versions of the beacon (1.x), host (1 X-Plane), version (121400 for 12.1.4), role (1 master), port, name.
struct Beacon {
    std::int32_t Version = 0;
    std::uint16_t Port = 0;  // where subscriptions are taken
    std::string Name;        // of the computer; "" where it isn't UTF-8
};
// Nothing for other packets, other hosts (as PlaneMaker), other roles and other major versions. What later minor
// versions have after the name is passed over; a name without its zero ends with the packet.
std::optional<Beacon> ReadBeacon(std::string_view packet);

// "RREF\0", times a second, our number, the name in 400 bytes. 0 times end a subscription. "" for a name that is too
// long.
std::string WriteSubscription(std::int32_t timesASecond, std::int32_t number, std::string_view name);

// "RREF," (or "RREFO"), then pairs of number and value. Nothing for a packet of another kind or length; values that are
// no numbers are left out.
using NumberedValue = std::pair<std::int32_t, float>;
std::optional<std::vector<NumberedValue>> ReadValues(std::string_view packet);

}  // namespace orvelle::simulators
