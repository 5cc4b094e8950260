#include "simulators/xplane/XPlanePackets.h"

#include <bit>
#include <cmath>

#include "adapters/shared/Utf8.h"

namespace orvelle::simulators {

namespace {

constexpr std::string_view BeaconHead("BECN\0", 5);
constexpr std::string_view SubscriptionHead("RREF\0", 5);
constexpr std::string_view ValuesHead = "RREF,";
constexpr std::string_view OldValuesHead = "RREFO";

constexpr std::size_t BeaconNameAt = 21;
constexpr std::size_t LongestBeaconName = 500;  // bytes
constexpr std::uint8_t BeaconMajor = 1;
constexpr std::uint32_t XPlaneHost = 1;
constexpr std::uint32_t MasterRole = 1;

constexpr std::size_t PairLength = 8;

// The unsigned number of so many bytes at a place that the packet has.
template <typename Number>
Number NumberAt(std::string_view packet, std::size_t place) {
    Number number = 0;
    for (std::size_t byte = sizeof(Number); byte-- > 0;)
        number = static_cast<Number>(number << 8 | static_cast<std::uint8_t>(packet[place + byte]));
    return number;
}

void Put(std::string& packet, std::size_t place, std::int32_t number) {
    const auto bits = static_cast<std::uint32_t>(number);
    for (int byte = 0; byte < 4; ++byte) packet[place + byte] = static_cast<char>(bits >> 8 * byte & 0xFF);
}

}  // namespace

std::optional<Beacon> ReadBeacon(std::string_view packet) {
    if (!packet.starts_with(BeaconHead) || packet.size() < BeaconNameAt) return std::nullopt;
    const bool isOurs = NumberAt<std::uint8_t>(packet, 5) == BeaconMajor &&
                        NumberAt<std::uint32_t>(packet, 7) == XPlaneHost &&
                        NumberAt<std::uint32_t>(packet, 15) == MasterRole;
    Beacon beacon;
    beacon.Version = static_cast<std::int32_t>(NumberAt<std::uint32_t>(packet, 11));
    beacon.Port = NumberAt<std::uint16_t>(packet, 19);
    if (!isOurs || beacon.Port == 0) return std::nullopt;
    std::string_view name = packet.substr(BeaconNameAt, LongestBeaconName);
    name = name.substr(0, name.find('\0'));
    if (IsUtf8(name)) beacon.Name = name;
    return beacon;
}

std::string WriteSubscription(std::int32_t timesASecond, std::int32_t number, std::string_view name) {
    if (name.size() > LongestDataref) return "";
    std::string packet(SubscriptionLength, '\0');
    packet.replace(0, SubscriptionHead.size(), SubscriptionHead);
    Put(packet, 5, timesASecond);
    Put(packet, 9, number);
    packet.replace(13, name.size(), name);
    return packet;
}

std::optional<std::vector<NumberedValue>> ReadValues(std::string_view packet) {
    if (!packet.starts_with(ValuesHead) && !packet.starts_with(OldValuesHead)) return std::nullopt;
    packet.remove_prefix(ValuesHead.size());
    const std::size_t count = packet.size() / PairLength;
    if (packet.size() % PairLength != 0 || count == 0 || count > MostValuesInPacket) return std::nullopt;
    std::vector<NumberedValue> values;
    values.reserve(count);
    for (; !packet.empty(); packet.remove_prefix(PairLength)) {
        const auto value = std::bit_cast<float>(NumberAt<std::uint32_t>(packet, 4));
        if (std::isfinite(value))
            values.emplace_back(static_cast<std::int32_t>(NumberAt<std::uint32_t>(packet, 0)), value);
    }
    return values;
}

}  // namespace orvelle::simulators
