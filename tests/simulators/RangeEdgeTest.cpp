// An hour's flight along the edge of a station's range, and one halfway between two stations, told 20 times a second by
// a simulator whose place trembles: the choice does not flap.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>
#include <random>

#include "simulators/directory/DirectoryReading.h"
#include "simulators/directory/StationIndex.h"
#include "tests/simulators/DirectoryText.h"

namespace orvelle::directory {
namespace {

using simulators::Place;

constexpr int StatesASecond = 20;
constexpr int Hour = 3600;
constexpr double MilesInDegree = 60.0405;

class RangeEdge : public testing::Test {
protected:
    // How often the choice changed; `path` gives the place in nautical miles east and north of 0, 0 at a second.
    int Fly(const std::string& stations, const std::function<std::pair<double, double>(double)>& path) {
        ReadText read = ReadDirectory(DirectoryWith(ClubServer, stations, "", ", 'otherwise': {'server': 'club'}"));
        EXPECT_EQ(read.FaultCount, 0U);
        const StationIndex index({std::make_shared<const Directory>(std::move(*read.Content))});
        std::normal_distribution<double> tremble(0, 0.02);
        int changes = -1;
        Choice held;
        for (int state = 0; state < Hour * StatesASecond; ++state) {
            const auto [east, north] = path(static_cast<double>(state) / StatesASecond);
            const Place place{(north + tremble(random)) / MilesInDegree, (east + tremble(random)) / MilesInDegree,
                              1000};
            Choice next = index.Choose(118300, place, held);
            const bool isOther = next.Station != held.Station || next.Voice.has_value() != held.Voice.has_value();
            if (state == 0 || isOther) ++changes;
            held = std::move(next);
        }
        return changes;
    }

    std::mt19937 random{54321};
};

TEST_F(RangeEdge, AlongTheEdgeOfOne) {
    const double range = 1.23 * (std::sqrt(1000.0) + std::sqrt(52 / 0.3048));
    for (const double edge : {range, 1.1 * range}) {
        const int changes =
            Fly(StationText("A", 118300, "", "'latDeg': 0, 'lonDeg': 0, 'heightMslM': 52"), [edge](double second) {
                const double angle = 2 * std::numbers::pi * second / Hour;
                return std::pair(edge * std::cos(angle), edge * std::sin(angle));
            });
        EXPECT_LE(changes, 1);
    }
}

TEST_F(RangeEdge, InAndOutAcrossTheEdge) {
    const double range = 1.23 * (std::sqrt(1000.0) + std::sqrt(52 / 0.3048));
    const int changes =
        Fly(StationText("A", 118300, "", "'latDeg': 0, 'lonDeg': 0, 'heightMslM': 52"), [range](double second) {
            return std::pair(range * (1.05 + 0.2 * std::cos(2 * std::numbers::pi * second / 600)), 0.0);
        });
    EXPECT_EQ(changes, 12) << "once in and once out in each of six circuits, beginning outside";
}

TEST_F(RangeEdge, HalfwayBetweenTwo) {
    const int changes = Fly(StationText("A", 118300, "", "'latDeg': 0, 'lonDeg': -0.3") + "," +
                                StationText("B", 118300, "", "'latDeg': 0, 'lonDeg': 0.3"),
                            [](double second) { return std::pair(0.0, 20 * std::sin(second / 100)); });
    EXPECT_LE(changes, 1);
}

}  // namespace
}  // namespace orvelle::directory
