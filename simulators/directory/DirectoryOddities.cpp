// What is no mistake in a directory, but hardly meant.
#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

#include "adapters/shared/HostAndPort.h"
#include "platform/VoiceSoftware.h"
#include "simulators/directory/Channels.h"
#include "simulators/directory/DirectoryReading.h"
#include "simulators/directory/Overlaps.h"
#include "simulators/directory/Placeholders.h"

namespace orvelle::directory {

namespace {

// Channels of 8.33 kHz and of 25 kHz begin at each 25 kHz, and are called by it and the next three fives.
bool IsChannelName(int kilohertz) { return kilohertz % 25 <= 15 && kilohertz % 5 == 0; }

// Of a recording: what names no scheme is the path of a file.
bool IsOfComputer(const std::string& server) {
    const std::size_t colon = server.find("://");
    return colon == std::string::npos || HostInLowerCase(server.substr(0, colon)) == "file";
}

class OddityFinder {
public:
    explicit OddityFinder(const ReadText& from) : read(from), directory(*from.Content), oddities(from.Unknown) {}

    std::vector<Fault> Find() {
        for (const auto& [name, server] : directory.Servers) LookAtServer(server, read.Servers.at(name));
        for (std::size_t index = 0; index < directory.Stations.size(); ++index)
            LookAtStation(directory.Stations[index], read.Stations[index]);
        for (std::size_t index = 0; index < directory.Everywhere.size(); ++index) {
            const EverywhereChannel& channel = directory.Everywhere[index];
            LookAtChannel(channel.Kilohertz, read.Everywhere[index]);
            LookAtGeneral(channel.Voice, read.Everywhere[index]);
        }
        if (directory.Otherwise) LookAtGeneral(*directory.Otherwise, read.Otherwise);
        for (const auto& [name, place] : read.Servers)
            if (!named.contains(name)) Tell(place, "No entry names this server.");
        for (const Overlap& overlap : FindOverlaps(directory)) Tell(overlap);
        std::ranges::stable_sort(oddities, {}, &Fault::Line);
        return std::move(oddities);
    }

private:
    void Tell(const EntryPlace& place, const std::string& sentence) {
        oddities.push_back({place.Line, place.Field, sentence});
    }

    void Tell(const Overlap& overlap) {
        const std::string other = directory.Stations[overlap.Other].Callsign;
        Tell(read.Stations[overlap.One], "The range of " + directory.Stations[overlap.One].Callsign + " overlaps on " +
                                             Megahertz(overlap.Kilohertz) + " with that of " + other + ", " +
                                             std::to_string(overlap.Distance) +
                                             " nautical miles away; the nearer one counts.");
    }

    void LookAtBraces(std::string_view text, const EntryPlace& place) {
        for (const std::string_view name : NamesInBraces(text))
            if (!IsPlaceholder(name)) Tell(place, std::string(name) + " is no placeholder; it stays as it stands.");
    }

    void LookAtServer(const VoiceServer& server, const EntryPlace& place) {
        for (const std::string& text : {server.Server, server.Login, server.Channel}) LookAtBraces(text, place);
        if (server.Software == VoiceAtis && IsOfComputer(server.Server))
            Tell(place, "A recording that is no address of the web is a file of each pilot's own computer.");
        if (!NamesInBraces(server.Password).empty()) Tell(place, "Nothing is filled in in a password.");
    }

    void LookAtChannel(int kilohertz, const EntryPlace& place) {
        if (!IsChannelName(kilohertz)) Tell(place, Megahertz(kilohertz) + " is not the name of any channel.");
    }

    void LookAtStation(const Station& station, const EntryPlace& place) {
        for (const Transceiver& transceiver : station.Transceivers) LookAtChannel(transceiver.Kilohertz, place);
        LookAtBraces(station.Voice.Channel.value_or(""), place);
        named.insert(station.Voice.Server);
    }

    // Of an entry without a station.
    void LookAtGeneral(const VoiceEntry& voice, const EntryPlace& place) {
        const VoiceServer& server = directory.Servers.at(voice.Server);
        LookAtBraces(voice.Channel.value_or(""), place);
        named.insert(voice.Server);
        const std::string texts = server.Server + ' ' + server.Login + ' ' + voice.Channel.value_or(server.Channel);
        for (const std::string_view name : {"{station}", "{airport}"})
            if (texts.find(name) != std::string::npos) Tell(place, std::string(name) + " is always empty here.");
    }

    const ReadText& read;
    const Directory& directory;
    std::vector<Fault> oddities;
    std::set<std::string> named;  // servers
};

}  // namespace

std::vector<Fault> FindOddities(const ReadText& read) {
    return read.Content ? OddityFinder(read).Find() : read.Unknown;
}

}  // namespace orvelle::directory
