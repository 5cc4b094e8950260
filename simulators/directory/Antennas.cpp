#include "simulators/directory/Antennas.h"

#include <algorithm>
#include <iterator>

namespace orvelle::directory {

namespace {

constexpr double WholeEarth = 5;      // more than any chord, squared
constexpr double Margin = 1 + 1e-9;   // for the rounding of what could be as near
constexpr double LeastChord = 1e-18;  // likewise, where something is found on the spot
constexpr double NoChord = -1;

}  // namespace

class Antennas::Search {
public:
    Search(const Antennas& among, const Spot& from) : antennas(among), spot(from) {}

    Nearest InRange(const Station* held) {
        const double widest = RangeOf(spot.RootOfHeight, antennas.greatestRoot, antennas.greatestOwnRange);
        bound = SquaredChordOf(widest * Margin);
        if (held != nullptr) {
            // Those of the one that is held weigh less; it has but a few antennas.
            for (const Antenna& antenna : antennas.all)
                if (antenna.Of == held) Try(antenna, SquaredChord(spot.Where, antenna.Where), Hold);
        }
        Walk([this](const Antenna& antenna, double chord) { Try(antenna, chord, 1); });
        return found;
    }

    Nearest OfAll() {
        bound = WholeEarth;
        Walk([this](const Antenna& antenna, double chord) { Take(antenna, chord, DistanceOf(chord), 1); });
        return found;
    }

private:
    // Both ways from the spot, while what lies there could be near enough by that axis alone.
    template <typename Visit>
    void Walk(Visit visit) {
        const auto along = [axis = antennas.axis](const Antenna& antenna) { return antenna.Where.*axis; };
        const double here = spot.Where.*antennas.axis;
        const auto isWithin = [&](const Antenna& antenna) {
            const double apart = along(antenna) - here;
            return apart * apart <= bound;
        };
        const auto look = [&](const Antenna& antenna) {
            if (const double chord = SquaredChord(spot.Where, antenna.Where); chord <= bound) visit(antenna, chord);
        };
        const auto middle = std::ranges::lower_bound(antennas.all, here, {}, along);
        for (auto next = middle; next != antennas.all.end() && isWithin(*next); ++next) look(*next);
        for (auto next = std::make_reverse_iterator(middle); next != antennas.all.rend() && isWithin(*next); ++next)
            look(*next);
    }

    void Try(const Antenna& antenna, double chord, double divisor) {
        const bool isLater = chord == foundChord && antenna.Of->Callsign >= found.Of->Callsign;
        if (isLater) return;
        const double distance = DistanceOf(chord);
        if (distance / divisor <= RangeAt(antenna)) Take(antenna, chord, distance, divisor);
    }

    void Take(const Antenna& antenna, double chord, double distance, double divisor) {
        const double counted = distance / divisor;
        const bool isNearer = found.Of == nullptr || counted < nearest ||
                              (counted == nearest && antenna.Of->Callsign < found.Of->Callsign);
        if (!isNearer) return;
        found = {antenna.Of, distance, RangeAt(antenna)};
        nearest = counted;
        foundChord = divisor == 1 ? chord : NoChord;
        bound = std::min(bound, SquaredChordOf(counted) * Margin + LeastChord);
    }

    double RangeAt(const Antenna& antenna) const {
        return RangeOf(spot.RootOfHeight, antenna.RootOfHeight, antenna.OwnRange);
    }

    const Antennas& antennas;
    const Spot& spot;
    double bound = 0;  // of squared chords
    Nearest found;
    double nearest = 0;  // the distance as it is compared
    double foundChord = NoChord;
};

void Antennas::Add(const Station& station, const Transceiver& transceiver) {
    if (all.empty())
        only = &station;
    else if (only != &station)
        only = nullptr;
    all.push_back({DirectionOf(transceiver.Latitude, transceiver.Longitude), RootOfMetres(transceiver.Height),
                   station.Range.value_or(Unlimited), &station});
    greatestRoot = std::max(greatestRoot, all.back().RootOfHeight);
    greatestOwnRange = std::max(greatestOwnRange, all.back().OwnRange);
}

void Antennas::Sort() {
    double widest = -1;
    for (double Direction::*const candidate : {&Direction::Z, &Direction::X, &Direction::Y}) {
        const auto along = [candidate](const Antenna& antenna) { return antenna.Where.*candidate; };
        const auto [least, greatest] = std::ranges::minmax(all, {}, along);
        if (const double spread = along(greatest) - along(least); spread > widest) {
            widest = spread;
            axis = candidate;
        }
    }
    std::ranges::sort(all, {}, [this](const Antenna& antenna) { return antenna.Where.*axis; });
}

Nearest Antennas::InRange(const Spot& spot, const Station* held) const { return Search(*this, spot).InRange(held); }

Nearest Antennas::OfAll(const Spot& spot) const { return Search(*this, spot).OfAll(); }

}  // namespace orvelle::directory
