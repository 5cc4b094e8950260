#include "simulators/directory/Overlaps.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <utility>

#include "simulators/directory/GreatCircle.h"
#include "simulators/directory/Placeholders.h"
#include "simulators/directory/RadioRange.h"

namespace orvelle::directory {

namespace {

struct Circle {
    Direction Where;
    double Range = 0;
    std::size_t Station = 0;
};

std::map<int, std::vector<Circle>> CirclesOf(const Directory& directory) {
    std::map<int, std::vector<Circle>> circles;
    for (std::size_t index = 0; index < directory.Stations.size(); ++index) {
        const Station& station = directory.Stations[index];
        for (const Transceiver& transceiver : station.Transceivers) {
            const double toGround = RangeOf(0, RootOfMetres(transceiver.Height), Unlimited);
            circles[transceiver.Kilohertz].push_back(
                {DirectionOf(transceiver.Latitude, transceiver.Longitude), station.Range.value_or(toGround), index});
        }
    }
    return circles;
}

bool LeadToOne(const Directory& directory, std::size_t one, std::size_t other, int kilohertz) {
    const auto record = [&](std::size_t index) {
        const Station& station = directory.Stations[index];
        return FilledRecord(directory.Servers.at(station.Voice.Server), station.Voice,
                            {kilohertz, station.Callsign, ""});
    };
    return record(one) == record(other);
}

}  // namespace

std::vector<Overlap> FindOverlaps(const Directory& directory) {
    std::vector<Overlap> overlaps;
    for (auto& [kilohertz, circles] : CirclesOf(directory)) {
        std::ranges::sort(circles, {}, [](const Circle& circle) { return circle.Where.Z; });
        const double widest = std::ranges::max(circles, {}, &Circle::Range).Range;
        std::set<std::pair<std::size_t, std::size_t>> pairs;
        for (auto one = circles.begin(); one != circles.end(); ++one) {
            const double farthest = std::sqrt(SquaredChordOf(one->Range + widest));
            for (auto other = one + 1; other != circles.end() && other->Where.Z - one->Where.Z <= farthest; ++other) {
                const double distance = DistanceOf(SquaredChord(one->Where, other->Where));
                if (one->Station == other->Station || distance >= one->Range + other->Range) continue;
                const std::pair pair = std::minmax(one->Station, other->Station);
                if (LeadToOne(directory, pair.first, pair.second, kilohertz) || !pairs.insert(pair).second) continue;
                overlaps.push_back({pair.first, pair.second, kilohertz, std::lround(distance)});
                if (overlaps.size() == MostOverlaps) return overlaps;
            }
        }
    }
    return overlaps;
}

}  // namespace orvelle::directory
