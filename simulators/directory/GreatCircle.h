// Distances over the earth by way of directions from its centre: the straight line between two of them, squared, costs
// three products, and is in the order of the distances (its quarter is the haversine of the angle). For the look-up of
// stations. Degrees and nautical miles; exact to a metre or so for a sphere, which the earth nearly is.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvelle::directory {

constexpr double EarthRadius = 3440.065;  // nautical miles

struct Direction {
    double X = 0, Y = 0, Z = 0;
};

inline Direction DirectionOf(double latitude, double longitude) {
    constexpr double Degree = std::numbers::pi / 180;
    const double out = std::cos(latitude * Degree);
    return {out * std::cos(longitude * Degree), out * std::sin(longitude * Degree), std::sin(latitude * Degree)};
}

// Between two directions; 0 to 4.
inline double SquaredChord(const Direction& one, const Direction& other) {
    const double x = one.X - other.X;
    const double y = one.Y - other.Y;
    const double z = one.Z - other.Z;
    return x * x + y * y + z * z;
}

inline double DistanceOf(double squaredChord) {
    return 2 * EarthRadius * std::asin(std::min(1.0, std::sqrt(squaredChord) / 2));
}

inline double SquaredChordOf(double distance) {
    const double half = std::sin(std::min(distance / (2 * EarthRadius), std::numbers::pi / 2));
    return 4 * half * half;
}

}  // namespace orvelle::directory
