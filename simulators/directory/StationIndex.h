// Which entry of the directories counts for a tuned channel at a place: the rule, the same for all.
//
// Of the stations with a transceiver on the channel, those are in range whose distance is no more than 1.23 x (root of
// the aircraft's height + root of the transceiver's height, in feet) nautical miles, but at least 20, and never more
// than the station's own range where it names one. The nearest counts, of equally near ones the first by callsign;
// several transceivers of a station count by the nearest that is in range. A station that is held, as long as its
// channel is tuned, counts as if its distance were divided by 1.1: it is left at 1.1 times its range, or where another
// one in range is so much nearer, so that nobody flaps at the edge of one or halfway between two. Then come the
// channels that are valid everywhere, then what counts otherwise. Without a place the only station of a channel counts,
// if there is but one. The first directory that has any of these for the channel wins, in the user's order: each is
// asked for stations, everywhere and otherwise before the next one.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "simulators/SimulatorState.h"
#include "simulators/directory/Directory.h"

namespace orvelle::directory {

enum class Reason {
    NoDirectory,  // there is none
    NotTuned,     // no frequency, or none of the band
    Station,      // in range
    HeldStation,  // beyond its range, and held
    OnlyStation,  // no place is known, and there is but one
    Everywhere,
    Otherwise,
    NoneInRange,   // stations of that channel are there, too far away
    PlaceUnknown,  // several stations of that channel, and no place
    NotListed,     // nothing in any directory
};

struct Choice {
    Reason Why = Reason::NoDirectory;
    std::size_t Directory = 0;          // which one, in the user's order
    std::string Station{};              // its callsign, "" for none; of NoneInRange the nearest one
    std::optional<double> Distance{};   // nautical miles to it
    std::optional<double> Range{};      // nautical miles that it reaches here
    std::optional<VoiceEntry> Voice{};  // none where there is no record

    // The same entry for the same reason, however far away: distance and range are left out.
    bool operator==(const Choice& other) const;
};

class StationIndex {
public:
    StationIndex();
    // In the user's order, none of them null; what `former` knows of one is taken over. 20,000 stations take less than
    // 50 us a look.
    explicit StationIndex(std::vector<std::shared_ptr<const Directory>> directories,
                          const StationIndex& former = StationIndex());
    ~StationIndex();
    StationIndex(StationIndex&&) noexcept;
    StationIndex& operator=(StationIndex&&) noexcept;

    // `kilohertz` as the radio tells it; `held` what was chosen before for this radio.
    Choice Choose(int kilohertz, const std::optional<simulators::Place>& place, const Choice& held) const;
    const Directory* Find(std::size_t directory) const;

private:
    struct Parts;

    std::unique_ptr<Parts> parts;
};

}  // namespace orvelle::directory
