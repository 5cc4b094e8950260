#include "simulators/directory/DirectoryEntries.h"

#include <array>
#include <cmath>
#include <utility>

#include "adapters/shared/HostAndPort.h"
#include "adapters/shared/Utf8.h"
#include "adapters/shared/VoiceTexts.h"
#include "platform/VoiceSoftware.h"
#include "simulators/directory/Channels.h"

namespace orvelle::directory {

namespace {

constexpr NumberBounds LatitudeBounds{"latitude", -90, 90, "-90 to 90 degrees"};
constexpr NumberBounds LongitudeBounds{"longitude", -180, 180, "-180 to 180 degrees"};
constexpr NumberBounds HeightBounds{"height", -1000, 100'000, "-1000 to 100000 metres"};
constexpr NumberBounds RangeBounds{"range", 0.1, 11'000, "0.1 to 11000 nautical miles"};
constexpr NumberBounds FrequencyBounds{"frequency in Hz of the aircraft's band", 118'000'000, 136'995'000,
                                       "118000000 to 136995000"};
constexpr const char* EachByItself = "{mhz}";

std::optional<Long> SoftwareOf(std::string_view word) {
    constexpr std::array<std::pair<std::string_view, Long>, 5> Words{{{"rogerwilco", RogerWilco},
                                                                      {"teamspeak", TeamSpeakHost},
                                                                      {"teamspeak-url", TeamSpeakUrl},
                                                                      {"engine", VatsimVoice},
                                                                      {"atis", VoiceAtis}}};
    for (const auto& [name, software] : Words)
        if (name == word) return software;
    return std::nullopt;
}

// The name of a channel in kHz, 0 where the field is no frequency, which was told.
int ReadChannel(Fields& fields) {
    const std::optional<double> hertz = fields.Number("frequency", Need::Required, FrequencyBounds);
    return hertz ? ChannelOfHertz(std::llround(*hertz)).value_or(0) : 0;
}

// What is not filled in yet may be anything.
bool IsFilled(std::string_view text) { return text.find('{') == std::string_view::npos; }

// The panel's engine takes what stands behind a slash as the beginning of the channel.
std::string EngineFault(const std::string& server) {
    constexpr int AnyPort = 1;
    const std::string place = server.substr(0, server.find('/'));
    if (!IsFilled(place) || ReadHostAndPort(place, AnyPort)) return "";
    return Quoted(server) + " is neither a host nor a host and a port from 1 to 65535.";
}

// A panel plays files of its computer as well; FindOddities tells of those.
std::string RecordingFault(const std::string& server) {
    const std::size_t colon = server.find("://");
    const std::string scheme = HostInLowerCase(server.substr(0, colon));
    if (colon == std::string::npos || !IsFilled(scheme) || scheme == "file") return "";
    if (scheme != "https" && scheme != "http")
        return Quoted(server) + " is no address that is played: those of the web begin with https:// or http://.";
    const std::size_t host = colon + 3;
    return server.find_first_of("/?#", host) == host || host == server.size() ? Quoted(server) + " names no host." : "";
}

std::string ServerFault(Long software, const std::string& server) {
    if (software == VatsimVoice) return EngineFault(server);
    return software == VoiceAtis ? RecordingFault(server) : "";
}

// Why the panel would take no such record, or could do nothing with it; "" where it would.
std::string RecordFault(const RadioVoiceSetting& record) {
    if (const Refusal refusal = RefusalOf(record); !refusal.Part.empty())
        return "The " + refusal.Part + " " + refusal.Rule + ".";
    if (std::string fault = ServerFault(record.Software, record.Server); !fault.empty()) return fault;
    for (const std::string& text : {record.Server, record.Channel, record.Login})
        if (CharactersOf(text) > LongestText)
            return "A text comes to more than " + std::to_string(LongestText) + " characters.";
    return "";
}

}  // namespace

void DirectoryEntries::TakeServer(const JsonMember& member, const std::string& path) {
    const auto& [name, value] = member;
    if (servers.contains(name)) return findings.Tell(value.Line, path, "It stands here a second time.");
    places[name] = {value.Line, path};
    leftOut.insert(name);
    if (name.empty() || !TextFault(name).empty())
        return findings.Tell(value.Line, path, "A server's name has 1 to 1000 characters, and no control character.");

    Fields fields(value, path, findings, {"software", "server", "login", "password", "channel"});
    const std::string word = fields.Text("software", Need::Required);
    const std::optional<Long> software = SoftwareOf(word);
    if (!word.empty() && !software)
        fields.Tell("software",
                    Quoted(word) + " is no software known here: rogerwilco, teamspeak, teamspeak-url, engine or atis.");
    VoiceServer server{.Software = software.value_or(NoVoice),
                       .Server = fields.Text("server", Need::Required),
                       .Login = fields.Text("login", Need::Optional),
                       .Password = fields.Text("password", Need::Optional),
                       .Channel = fields.OptionalText("channel").value_or(EachByItself)};
    if (!fields.IsSound()) return;
    if (const std::string fault = ServerFault(server.Software, server.Server); !fault.empty())
        return fields.Tell("server", fault);
    const RadioVoiceSetting record{server.Software, server.Server, server.Channel, server.Login, server.Password};
    if (const std::string fault = RecordFault(record); !fault.empty()) return findings.Tell(value.Line, path, fault);
    leftOut.erase(name);
    servers[name] = std::move(server);
}

std::optional<VoiceEntry> DirectoryEntries::ReadVoice(const JsonValue& value, const std::string& path) {
    Fields fields(value, path, findings, {"server", "channel"});
    VoiceEntry voice{fields.Text("server", Need::Required), fields.OptionalText("channel")};
    return fields.IsSound() ? std::optional(std::move(voice)) : std::nullopt;
}

std::optional<Transceiver> DirectoryEntries::ReadTransceiver(const JsonValue& value, const std::string& path) {
    Fields fields(value, path, findings, {"frequency", "latDeg", "lonDeg", "heightMslM"});
    Transceiver transceiver;
    transceiver.Kilohertz = ReadChannel(fields);
    transceiver.Latitude = fields.Number("latDeg", Need::Required, LatitudeBounds).value_or(0);
    transceiver.Longitude = fields.Number("lonDeg", Need::Required, LongitudeBounds).value_or(0);
    transceiver.Height = fields.Number("heightMslM", Need::Optional, HeightBounds).value_or(0);
    return fields.IsSound() ? std::optional(transceiver) : std::nullopt;
}

void DirectoryEntries::TakeStation(const JsonValue& value, const std::string& path) {
    Fields fields(value, path, findings, {"callsign", "transceivers", "rangeNm", "voice"});
    Placed<Station> placed{{},
                           {value.Line, path},
                           {fields.LineOf("voice"), fields.PathOf("voice")},
                           {fields.LineOf("callsign"), fields.PathOf("callsign")},
                           true};
    Station& station = placed.Content;
    station.Callsign = fields.Text("callsign", Need::Required);
    station.Range = fields.Number("rangeNm", Need::Optional, RangeBounds);
    if (const JsonValue* const list = fields.List("transceivers")) {
        if (list->Members.empty()) fields.Tell("transceivers", "It is empty.");
        const std::string of = fields.PathOf("transceivers");
        for (std::size_t index = 0; index < list->Members.size(); ++index)
            if (const auto transceiver = ReadTransceiver(list->Members[index].Value, of + ItemPath(index)))
                station.Transceivers.push_back(*transceiver);
    }
    const JsonValue* const object = fields.Object("voice");
    const std::optional<VoiceEntry> voice = object ? ReadVoice(*object, placed.Voice.Field) : std::nullopt;
    if (!voice) return;
    station.Voice = *voice;
    placed.IsSound = fields.IsSound() && !station.Transceivers.empty();
    stations.push_back(std::move(placed));
}

void DirectoryEntries::TakeEverywhere(const JsonValue& value, const std::string& path) {
    Fields fields(value, path, findings, {"frequency", "voice"});
    Placed<EverywhereChannel> placed{{},
                                     {value.Line, path},
                                     {fields.LineOf("voice"), fields.PathOf("voice")},
                                     {fields.LineOf("frequency"), fields.PathOf("frequency")},
                                     true};
    placed.Content.Kilohertz = ReadChannel(fields);
    const JsonValue* const object = fields.Object("voice");
    const std::optional<VoiceEntry> voice = object ? ReadVoice(*object, placed.Voice.Field) : std::nullopt;
    if (!voice) return;
    placed.Content.Voice = *voice;
    placed.IsSound = fields.IsSound();
    everywhere.push_back(std::move(placed));
}

void DirectoryEntries::TakeOtherwise(const JsonValue& value) {
    if (const std::optional<VoiceEntry> voice = ReadVoice(value, "otherwise"))
        otherwise = Placed<VoiceEntry>{*voice, {value.Line, "otherwise"}, {value.Line, "otherwise"}, {}, true};
}

// With what is known of the placeholders; the pilot's callsign is held against the rules by whoever takes the record.
bool DirectoryEntries::IsSound(const VoiceEntry& voice, const EntryPlace& place, const Placeholders& values) {
    const auto server = servers.find(voice.Server);
    if (server == servers.end()) {
        if (!leftOut.contains(voice.Server))
            findings.Tell(place.Line, place.Field + ".server", "No server is called " + Quoted(voice.Server) + ".");
        return false;
    }
    const std::string fault = RecordFault(FilledRecord(server->second, voice, values));
    if (!fault.empty()) findings.Tell(place.Line, place.Field, fault);
    return fault.empty();
}

// One that is left out has no name to lose.
template <typename Name>
bool DirectoryEntries::IsFirst(std::map<Name, std::size_t>& names, const Name& name, std::size_t line,
                               const EntryPlace& place, const std::string& shown) {
    const auto [first, isNew] = names.emplace(name, line);
    if (!isNew)
        findings.Tell(place.Line, place.Field,
                      shown + " stands on line " + std::to_string(first->second) + " already.");
    return isNew;
}

void DirectoryEntries::Join(ReadText& read) {
    constexpr const char* AnyCallsign = "{callsign}";
    Directory directory;
    std::map<std::string, std::size_t> callsigns;
    std::map<int, std::size_t> channels;
    for (auto& [station, place, voice, name, isSound] : stations) {
        const int channel = station.Transceivers.empty() ? FirstChannel : station.Transceivers.front().Kilohertz;
        if (!IsSound(station.Voice, voice, {channel, station.Callsign, AnyCallsign}) || !isSound) continue;
        if (!IsFirst(callsigns, station.Callsign, place.Line, name, Quoted(station.Callsign))) continue;
        directory.Stations.push_back(std::move(station));
        read.Stations.push_back(std::move(place));
    }
    for (auto& [channel, place, voice, name, isSound] : everywhere) {
        if (!IsSound(channel.Voice, voice, {channel.Kilohertz, "", AnyCallsign}) || !isSound) continue;
        if (!IsFirst(channels, channel.Kilohertz, place.Line, name, Megahertz(channel.Kilohertz))) continue;
        directory.Everywhere.push_back(std::move(channel));
        read.Everywhere.push_back(std::move(place));
    }
    if (otherwise && IsSound(otherwise->Content, otherwise->Voice, {FirstChannel, "", AnyCallsign})) {
        directory.Otherwise = std::move(otherwise->Content);
        read.Otherwise = std::move(otherwise->Place);
    }
    for (const auto& [name, server] : servers) read.Servers[name] = std::move(places[name]);
    directory.Servers = std::move(servers);
    read.Content = std::move(directory);
}

}  // namespace orvelle::directory
