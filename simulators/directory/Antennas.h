// The antennas of one channel in one directory, and which of them is the nearest to an aircraft. Looked at from the
// aircraft outward along that axis of the earth on which they are spread most, as far as any could be nearer than what
// was found; so a look at 20,000 of them that are spread anyhow costs no more than one at some dozens.
#pragma once

#include <vector>

#include "simulators/SimulatorState.h"
#include "simulators/directory/Directory.h"
#include "simulators/directory/GreatCircle.h"
#include "simulators/directory/RadioRange.h"

namespace orvelle::directory {

constexpr double Hold = 1.1;  // by this the distance of a station that is held is divided

struct Spot {
    explicit Spot(const simulators::Place& place)
        : Where(DirectionOf(place.Latitude, place.Longitude)), RootOfHeight(RootOfFeet(place.Altitude)) {}

    Direction Where;
    double RootOfHeight;  // of feet
};

// Nautical miles; of no station where there is none.
struct Nearest {
    const Station* Of = nullptr;
    double Distance = 0;
    double Range = 0;  // of its antenna there
};

class Antennas {
public:
    // The station outlives this object. After the last one comes Sort.
    void Add(const Station& station, const Transceiver& transceiver);
    void Sort();

    // `held` is null for none; equal distances are told apart by callsign.
    Nearest InRange(const Spot& spot, const Station* held) const;
    Nearest OfAll(const Spot& spot) const;
    const Station* Only() const { return only; }  // null where there are several

private:
    class Search;
    struct Antenna {
        Direction Where;
        double RootOfHeight = 0;  // of feet
        double OwnRange = Unlimited;
        const Station* Of = nullptr;
    };

    std::vector<Antenna> all;
    double Direction::*axis = &Direction::Z;
    double greatestRoot = 0;
    double greatestOwnRange = 0;
    const Station* only = nullptr;
};

}  // namespace orvelle::directory
