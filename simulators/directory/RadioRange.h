// How far a radio reaches by the heights of both ends. For the look-up of stations and for what is told of them.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "simulators/directory/Directory.h"

namespace orvelle::directory {

constexpr double LeastRange = 20;  // nautical miles, where a station names no shorter one
constexpr double Unlimited = std::numeric_limits<double>::infinity();

inline double RootOfFeet(double feet) { return std::sqrt(std::max(0.0, feet)); }
inline double RootOfMetres(double metres) {
    constexpr double FootInMetres = 0.3048;
    return RootOfFeet(metres / FootInMetres);
}

// In nautical miles, of the roots of both heights in feet; `own` is the station's own range, Unlimited for none.
inline double RangeOf(double rootOfAircraft, double rootOfStation, double own) {
    constexpr double MilesByRoot = 1.23;
    return std::min(own, std::max(LeastRange, MilesByRoot * (rootOfAircraft + rootOfStation)));
}

}  // namespace orvelle::directory
