#include "simulators/directory/StationIndex.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "simulators/directory/Antennas.h"
#include "simulators/directory/Channels.h"

namespace orvelle::directory {

namespace {

struct Entries {
    std::unordered_map<int, Antennas> Channels;
    std::unordered_map<int, const EverywhereChannel*> Everywhere;
    std::unordered_map<std::string_view, const Station*> Stations;
};

Entries EntriesOf(const Directory& directory) {
    Entries entries;
    for (const Station& station : directory.Stations) {
        entries.Stations.emplace(station.Callsign, &station);
        for (const Transceiver& transceiver : station.Transceivers)
            entries.Channels[transceiver.Kilohertz].Add(station, transceiver);
    }
    for (auto& [kilohertz, antennas] : entries.Channels) antennas.Sort();
    for (const EverywhereChannel& channel : directory.Everywhere)
        entries.Everywhere.try_emplace(channel.Kilohertz, &channel);
    return entries;
}

std::optional<Spot> SpotOf(const std::optional<simulators::Place>& place) {
    if (!place || !std::isfinite(place->Latitude + place->Longitude + place->Altitude)) return std::nullopt;
    return Spot(*place);
}

Choice StationChoice(const Antennas& antennas, const std::optional<Spot>& spot, const Station* held) {
    if (!spot) {
        const Station* const only = antennas.Only();
        if (only == nullptr) return {.Why = Reason::PlaceUnknown};
        return {.Why = Reason::OnlyStation, .Station = only->Callsign, .Voice = only->Voice};
    }
    const auto choice = [](Reason why, const Nearest& nearest) {
        return Choice{
            .Why = why, .Station = nearest.Of->Callsign, .Distance = nearest.Distance, .Range = nearest.Range};
    };
    const Nearest nearest = antennas.InRange(*spot, held);
    if (nearest.Of == nullptr) return choice(Reason::NoneInRange, antennas.OfAll(*spot));
    Choice chosen = choice(nearest.Distance > nearest.Range ? Reason::HeldStation : Reason::Station, nearest);
    chosen.Voice = nearest.Of->Voice;
    return chosen;
}

// What is there but doesn't count comes before nothing at all, and the nearer of two that are too far away.
bool TellsMore(const Choice& one, const Choice& other) {
    if (one.Why == Reason::NotListed) return false;
    return other.Why == Reason::NotListed || (one.Distance && other.Distance && *one.Distance < *other.Distance);
}

}  // namespace

struct StationIndex::Parts {
    std::vector<std::shared_ptr<const Directory>> Directories;
    std::vector<std::shared_ptr<const Entries>> Index;

    Choice Ask(std::size_t which, int channel, const std::optional<Spot>& spot, const std::string& held) const {
        const Entries& entries = *Index[which];
        Choice none{.Why = Reason::NotListed};
        if (const auto found = entries.Channels.find(channel); found != entries.Channels.end()) {
            const auto station = entries.Stations.find(held);
            Choice choice =
                StationChoice(found->second, spot, station == entries.Stations.end() ? nullptr : station->second);
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

StationIndex::StationIndex() : parts(std::make_unique<Parts>()) {}

StationIndex::StationIndex(std::vector<std::shared_ptr<const Directory>> directories, const StationIndex& former)
    : StationIndex() {
    const auto& known = former.parts->Directories;
    for (const auto& directory : directories) {
        const auto found = std::ranges::find(known, directory);
        parts->Index.push_back(found == known.end()
                                   ? std::make_shared<const Entries>(EntriesOf(*directory))
                                   : former.parts->Index[static_cast<std::size_t>(found - known.begin())]);
    }
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
