// Which of the X-Planes that can be found is asked: one of this computer before all others, and the one that answers
// for as long as it does. Plain data.
#pragma once

#include <cstdint>
#include <string>

namespace orvelle::simulators {

enum class XPlaneOwner { ThisComputer, Another };

struct XPlaneTarget {
    XPlaneOwner Owner = XPlaneOwner::Another;
    std::uint32_t Address = 0;  // of the sender of its beacon; loopback where that is this computer
    std::uint16_t Port = 0;     // where it takes subscriptions
    std::int32_t Version = 0;   // of X-Plane, as 121400
    std::string Host{};         // how its computer calls itself, "" for unknown
};

// A computer has several addresses, so of this one the port says whether it is the same.
bool IsSame(const XPlaneTarget& one, const XPlaneTarget& other);

// What became of asking the present one.
enum class XPlaneAnswer {
    Awaited,  // for no more than five seconds
    None,     // for longer
    Given,    // and goes on; or paused, while its process is there
    Paused,   // and its process isn't known
};

// Whether another one that was found is asked in place of the present one.
bool TakesOver(const XPlaneTarget& next, const XPlaneTarget& present, XPlaneAnswer answer);

std::string NameOf(const XPlaneTarget& target);  // "X-Plane 12"
// On another computer also on which: "X-Plane 12 on cockpit", or at its address where it has no name of letters,
// digits and a few signs.
std::string NameWithHost(const XPlaneTarget& target);

}  // namespace orvelle::simulators
