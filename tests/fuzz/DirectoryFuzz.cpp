// The fuzz target of directories of voice channels: any bytes as the text of one. What is taken of it must be within
// the bounds of docs/directory.md, what is wrong must be told by a line of the text, and each station must be found
// where it stands. At the end it tells how many inputs had a mistake.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "adapters/shared/Utf8.h"
#include "adapters/shared/VoiceTexts.h"
#include "simulators/directory/Channels.h"
#include "simulators/directory/DirectoryReading.h"
#include "simulators/directory/Placeholders.h"
#include "simulators/directory/StationIndex.h"
#include "tests/fuzz/Breach.h"

namespace orvelle::directory {

namespace {

constexpr std::size_t LongestText = 1000;

using fuzz::Fail;

fuzz::Counts& Tried() {
    static fuzz::Counts counts("directories");
    return counts;
}

void HoldText(const std::string& text) {
    if (!IsUtf8(text) || CharactersOf(text) > LongestText) Fail("a text", text);
}

void HoldFaults(const std::vector<Fault>& faults, std::size_t lines) {
    for (const Fault& fault : faults) {
        if (fault.Line < 1 || fault.Line > lines) Fail("a line", fault.Sentence);
        if (!IsUtf8(fault.Field) || !IsUtf8(fault.Sentence)) Fail("a fault's text", fault.Field);
        if (fault.Sentence.empty() || fault.Sentence.size() > 1000) Fail("a sentence", fault.Sentence);
    }
}

void HoldChannel(int kilohertz) {
    if (ChannelOfKilohertz(kilohertz) != kilohertz) Fail("a channel", std::to_string(kilohertz));
}

void HoldVoice(const Directory& directory, const VoiceEntry& voice, const std::string& station) {
    const auto server = directory.Servers.find(voice.Server);
    if (server == directory.Servers.end()) Fail("a server", voice.Server);
    if (voice.Channel && voice.Channel->empty()) Fail("a channel", voice.Server);
    const RadioVoiceSetting record = FilledRecord(server->second, voice, {FirstChannel, station, "ABC123"});
    if (!RefusalOf(record).Part.empty()) Fail("a record that the panel refuses", record.Server);
}

void HoldStation(const Directory& directory, const Station& station) {
    HoldText(station.Callsign);
    if (station.Callsign.empty() || station.Transceivers.empty()) Fail("a station", station.Callsign);
    if (station.Range && !(*station.Range >= 0.1 && *station.Range <= 11'000)) Fail("a range", station.Callsign);
    for (const Transceiver& transceiver : station.Transceivers) {
        HoldChannel(transceiver.Kilohertz);
        const bool isOnEarth = std::abs(transceiver.Latitude) <= 90 && std::abs(transceiver.Longitude) <= 180 &&
                               transceiver.Height >= -1000 && transceiver.Height <= 100'000;
        if (!isOnEarth) Fail("a place", station.Callsign);
    }
    HoldVoice(directory, station.Voice, station.Callsign);
}

void HoldContent(const Directory& directory) {
    HoldText(directory.Name);
    for (const auto& [name, server] : directory.Servers) {
        for (const std::string& text : {name, server.Server, server.Login, server.Password, server.Channel})
            HoldText(text);
        if (name.empty() || server.Server.empty() || server.Channel.empty()) Fail("a server", name);
        if (server.Software < RogerWilco || server.Software > VoiceAtis) Fail("a software", name);
    }
    std::set<std::string> callsigns;
    for (const Station& station : directory.Stations) {
        HoldStation(directory, station);
        if (!callsigns.insert(station.Callsign).second) Fail("a station twice", station.Callsign);
    }
    for (const EverywhereChannel& channel : directory.Everywhere) {
        HoldChannel(channel.Kilohertz);
        HoldVoice(directory, channel.Voice, "");
    }
    if (directory.Otherwise) HoldVoice(directory, *directory.Otherwise, "");
}

// Where a station stands it is in range, so one of its channel is chosen.
void HoldLook(const std::shared_ptr<const Directory>& directory) {
    const StationIndex index({directory});
    Choice held;
    for (const Station& station : directory->Stations) {
        const Transceiver& transceiver = station.Transceivers.front();
        held = index.Choose(transceiver.Kilohertz, simulators::Place{transceiver.Latitude, transceiver.Longitude, 0},
                            held);
        if (!held.Voice || held.Station.empty() || !(*held.Distance <= 22)) Fail("a look-up", station.Callsign);
    }
}

void Read(std::string_view text) {
    ReadText read = ReadDirectory(text);
    const std::size_t lines = 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    if (read.Faults.size() > MostFaults || read.Faults.size() > read.FaultCount) Fail("counts", text);
    if (!read.Content && read.Faults.empty()) Fail("nothing is told", text);
    HoldFaults(read.Faults, lines);
    HoldFaults(FindOddities(read), lines);
    Tried().Count(read.FaultCount == 0);
    if (!read.Content) return;
    HoldContent(*read.Content);
    HoldLook(std::make_shared<const Directory>(std::move(*read.Content)));
}

}  // namespace

}  // namespace orvelle::directory

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    const std::string_view text = orvelle::fuzz::TextOf(bytes, count);
    orvelle::directory::Read(text);
    orvelle::fuzz::ReadNeighbours(text, 16, orvelle::directory::Read);
    return 0;
}
