#include "simulators/xplane/XPlaneTarget.h"

#include <algorithm>
#include <string_view>

#include "simulators/UdpSocket.h"

namespace orvelle::simulators {

namespace {

constexpr std::int32_t VersionsOfMajor = 10000;
constexpr std::size_t LongestHost = 63;  // bytes

// Anybody on the network may send a name.
bool CanBeShown(const std::string& host) {
    const auto isPlain = [](char letter) {
        constexpr std::string_view Others = " -_.";
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
               (letter >= '0' && letter <= '9') || Others.find(letter) != std::string_view::npos;
    };
    return host.find_first_not_of(' ') != std::string::npos && host.size() <= LongestHost &&
           std::ranges::all_of(host, isPlain);
}

}  // namespace

bool IsSame(const XPlaneTarget& one, const XPlaneTarget& other) {
    if (one.Owner != other.Owner || one.Port != other.Port) return false;
    return one.Owner == XPlaneOwner::ThisComputer || one.Address == other.Address;
}

bool TakesOver(const XPlaneTarget& next, const XPlaneTarget& present, XPlaneAnswer answer) {
    if (IsSame(next, present)) return false;
    if (next.Owner != present.Owner) return next.Owner == XPlaneOwner::ThisComputer;
    switch (answer) {
        case XPlaneAnswer::Awaited:
        case XPlaneAnswer::Given:
            return false;
        case XPlaneAnswer::None:
            return true;
        case XPlaneAnswer::Paused:
            // It was started again, and has another port now.
            return next.Address == present.Address;
    }
    return false;
}

std::string NameOf(const XPlaneTarget& target) {
    const std::int32_t major = target.Version / VersionsOfMajor;
    return major > 0 ? "X-Plane " + std::to_string(major) : "X-Plane";
}

std::string NameWithHost(const XPlaneTarget& target) {
    if (target.Owner == XPlaneOwner::ThisComputer) return NameOf(target);
    return NameOf(target) + (CanBeShown(target.Host) ? " on " + target.Host : " at " + Dotted(target.Address));
}

}  // namespace orvelle::simulators
