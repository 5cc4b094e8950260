#include "simulators/directory/StationIndex.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "simulators/directory/Channels.h"
#include "simulators/directory/GreatCircle.h"
#include "simulators/directory/RadioRange.h"

namespace orvelle::directory {

namespace {

constexpr double Hold = 1.1;
constexpr double WholeEarth = 5;  // more than any chord, squared

struct Antenna {
    Direction Where;
    double RootOfHeight = 0;  // of feet
    double OwnRange = Unlimited;
    const Station* Of = nullptr;
};

// All transceivers of one channel, from south to north.
struct Channel {
    std::vector<Antenna> Antennas;
    double GreatestRoot = 0;
    double GreatestOwnRange = 0;
    const Station* Only = nullptr;  // null where there are several
};

struct Entries {
    std::unordered_map<int, Channel> Channels;
    std::unordered_map<int, const EverywhereChannel*> Everywhere;
};

Entries EntriesOf(const Directory& directory) {
    Entries entries;
    for (const Station& station : directory.Stations) {
        for (const Transceiver& transceiver : station.Transceivers) {
            Channel& channel = entries.Channels[transceiver.Kilohertz];
            const double root = RootOfMetres(transceiver.Height);
            const double own = station.Range.value_or(Unlimited);
            if (channel.Antennas.empty())
                channel.Only = &station;
            else if (channel.Only != &station)
                channel.Only = nullptr;
            channel.Antennas.push_back({DirectionOf(transceiver.Latitude, transceiver.Longitude), root, own, &station});
            channel.GreatestRoot = std::max(channel.GreatestRoot, root);
            channel.GreatestOwnRange = std::max(channel.GreatestOwnRange, own);
        }
    }
    for (auto& [kilohertz, channel] : entries.Channels)
        std::ranges::sort(channel.Antennas, {}, [](const Antenna& antenna) { return antenna.Where.Z; });
    for (const EverywhereChannel& channel : directory.Everywhere)
        entries.Everywhere.try_emplace(channel.Kilohertz, &channel);
    return entries;
}

// Where the aircraft is.
struct Spot {
    Direction Where;
    double RootOfHeight = 0;  // of feet
};

struct Nearest {
    const Antenna* Of = nullptr;
    double Distance = 0;
    double Weight = 0;  // the distance as it is compared
};

double RangeAt(const Spot& spot, const Antenna& antenna) {
    return RangeOf(spot.RootOfHeight, antenna.RootOfHeight, antenna.OwnRange);
}

// Looks at the antennas from the spot outward, north then south, as far as any could be nearer than what was found.
class Search {
public:
    Search(const Spot& from, const Channel& among, double widest) : spot(from), channel(among), bound(widest) {}

    // `weigh` gives the distance as it is compared, nothing for an antenna that doesn't count; it is no less than the
    // distance divided by Hold.
    template <typename Weigh>
    Nearest Find(Weigh weigh) {
        const std::vector<Antenna>& all = channel.Antennas;
        const auto middle =
            std::ranges::lower_bound(all, spot.Where.Z, {}, [](const Antenna& antenna) { return antenna.Where.Z; });
        for (auto antenna = middle; antenna != all.end() && IsWithin(*antenna); ++antenna) Try(*antenna, weigh);
        for (auto antenna = middle; antenna != all.begin() && IsWithin(*std::prev(antenna)); --antenna)
            Try(*std::prev(antenna), weigh);
        return found;
    }

private:
    // How far north or south it is alone.
    bool IsWithin(const Antenna& antenna) const {
        const double apart = antenna.Where.Z - spot.Where.Z;
        return apart * apart <= bound;
    }

    template <typename Weigh>
    void Try(const Antenna& antenna, Weigh weigh) {
        const double chord = SquaredChord(spot.Where, antenna.Where);
        if (chord > bound) return;
        const double distance = DistanceOf(chord);
        const std::optional<double> weight = weigh(antenna, distance);
        if (!weight) return;
        const bool isFirst = found.Of == nullptr || *weight < found.Weight ||
                             (*weight == found.Weight && antenna.Of->Callsign < found.Of->Of->Callsign);
        if (!isFirst) return;
        found = {&antenna, distance, *weight};
        // A little more than what could be as near, for the rounding.
        constexpr double Margin = 1 + 1e-9;
        bound = std::min(bound, SquaredChordOf(*weight * Hold * Margin) + 1e-18);
    }

    const Spot& spot;
    const Channel& channel;
    double bound;  // of squared chords
    Nearest found;
};

Nearest NearestInRange(const Spot& spot, const Channel& channel, const Station* held) {
    const double widest = Hold * RangeOf(spot.RootOfHeight, channel.GreatestRoot, channel.GreatestOwnRange);
    return Search(spot, channel, SquaredChordOf(widest * (1 + 1e-9)))
        .Find([&](const Antenna& antenna, double distance) -> std::optional<double> {
            const double weight = antenna.Of == held ? distance / Hold : distance;
            return weight <= RangeAt(spot, antenna) ? std::optional(weight) : std::nullopt;
        });
}

Nearest NearestOfAll(const Spot& spot, const Channel& channel) {
    return Search(spot, channel, WholeEarth).Find([](const Antenna&, double distance) {
        return std::optional(distance);
    });
}

std::optional<Spot> SpotOf(const std::optional<simulators::Place>& place) {
    if (!place || !std::isfinite(place->Latitude + place->Longitude + place->Altitude)) return std::nullopt;
    return Spot{DirectionOf(place->Latitude, place->Longitude), RootOfFeet(place->Altitude)};
}

Choice ChoiceOf(Reason why, const Nearest& nearest, const Spot& spot) {
    return {.Why = why,
            .Station = nearest.Of->Of->Callsign,
            .Distance = nearest.Distance,
            .Range = RangeAt(spot, *nearest.Of)};
}

Choice StationChoice(const Channel& channel, const std::optional<Spot>& spot, const std::string& held) {
    if (!spot) {
        if (channel.Only == nullptr) return {.Why = Reason::PlaceUnknown};
        return {.Why = Reason::OnlyStation, .Station = channel.Only->Callsign, .Voice = channel.Only->Voice};
    }
    const auto isHeld = [&held](const Antenna& antenna) { return antenna.Of->Callsign == held; };
    const auto ofHeld = held.empty() ? channel.Antennas.end() : std::ranges::find_if(channel.Antennas, isHeld);
    const Nearest nearest = NearestInRange(*spot, channel, ofHeld == channel.Antennas.end() ? nullptr : ofHeld->Of);
    if (nearest.Of == nullptr) return ChoiceOf(Reason::NoneInRange, NearestOfAll(*spot, channel), *spot);
    Choice choice = ChoiceOf(Reason::Station, nearest, *spot);
    if (nearest.Distance > *choice.Range) choice.Why = Reason::HeldStation;
    choice.Voice = nearest.Of->Of->Voice;
    return choice;
}

// What is there but doesn't count comes before nothing at all, and the nearer of two that are too far away.
bool TellsMore(const Choice& one, const Choice& other) {
    if (one.Why == Reason::NotListed) return false;
    return other.Why == Reason::NotListed || (one.Distance && other.Distance && *one.Distance < *other.Distance);
}

}  // namespace

struct StationIndex::Parts {
    std::vector<std::shared_ptr<const Directory>> Directories;
    std::vector<Entries> Index;

    Choice Ask(std::size_t which, int channel, const std::optional<Spot>& spot, const std::string& held) const {
        if (!Directories[which]) return {.Why = Reason::NotListed};
        const Entries& entries = Index[which];
        Choice none{.Why = Reason::NotListed};
        if (const auto found = entries.Channels.find(channel); found != entries.Channels.end()) {
            Choice choice = StationChoice(found->second, spot, held);
            if (choice.Voice) return choice;
            none = choice;
        }
        if (const auto found = entries.Everywhere.find(channel); found != entries.Everywhere.end())
            return {.Why = Reason::Everywhere, .Voice = found->second->Voice};
        if (Directories[which]->Otherwise) return {.Why = Reason::Otherwise, .Voice = Directories[which]->Otherwise};
        return none;
    }
};

bool Choice::operator==(const Choice& other) const {
    const auto parts = [](const Choice& choice) {
        const VoiceEntry voice = choice.Voice.value_or(VoiceEntry{});
        return std::tuple(choice.Why, choice.Directory, choice.Station, choice.Voice.has_value(), voice.Server,
                          voice.Channel);
    };
    return parts(*this) == parts(other);
}

StationIndex::StationIndex() : StationIndex(std::vector<std::shared_ptr<const Directory>>()) {}

StationIndex::StationIndex(std::vector<std::shared_ptr<const Directory>> directories)
    : parts(std::make_unique<Parts>()) {
    for (const auto& directory : directories) parts->Index.push_back(directory ? EntriesOf(*directory) : Entries{});
    parts->Directories = std::move(directories);
}

StationIndex::~StationIndex() = default;
StationIndex::StationIndex(StationIndex&&) noexcept = default;
StationIndex& StationIndex::operator=(StationIndex&&) noexcept = default;

Choice StationIndex::Choose(int kilohertz, const std::optional<simulators::Place>& place, const Choice& held) const {
    if (parts->Directories.empty()) return {};
    const std::optional<int> channel = ChannelOfKilohertz(kilohertz);
    if (!channel) return {.Why = Reason::NotTuned};
    const std::optional<Spot> spot = SpotOf(place);
    const bool isHeld = held.Why == Reason::Station || held.Why == Reason::HeldStation;
    Choice none{.Why = Reason::NotListed};
    for (std::size_t which = 0; which < parts->Directories.size(); ++which) {
        Choice choice = parts->Ask(which, *channel, spot, isHeld && held.Directory == which ? held.Station : "");
        choice.Directory = which;
        if (choice.Voice) return choice;
        if (TellsMore(choice, none)) none = std::move(choice);
    }
    return none;
}

const Directory* StationIndex::Find(std::size_t directory) const {
    return directory < parts->Directories.size() ? parts->Directories[directory].get() : nullptr;
}

}  // namespace orvelle::directory
