// Pairs of stations of one channel that lead to different voice channels although an aircraft can be in the range of
// both, so that its place alone decides between them. For what is told of a directory's oddities.
#pragma once

#include <cstddef>
#include <vector>

#include "simulators/directory/Directory.h"

namespace orvelle::directory {

constexpr std::size_t MostOverlaps = 100;

struct Overlap {
    std::size_t One = 0, Other = 0;  // places in Directory::Stations, the first before the other
    int Kilohertz = 0;
    long Distance = 0;  // nautical miles
};

// Each pair once, MostOverlaps of them. A station reaches as far as the range that it names, else as far as to the
// ground.
std::vector<Overlap> FindOverlaps(const Directory& directory);

}  // namespace orvelle::directory
