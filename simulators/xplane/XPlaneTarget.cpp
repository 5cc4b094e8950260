#include "simulators/xplane/XPlaneTarget.h"

namespace orvelle::simulators {

namespace {

constexpr std::int32_t VersionsOfMajor = 10000;

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

}  // namespace orvelle::simulators
