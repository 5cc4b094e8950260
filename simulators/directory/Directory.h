// A community's directory of voice channels, as "orvelle-directory/1" tells it (docs/directory.md, and its JSON Schema
// docs/orvelle-directory-1.schema.json): servers, stations with their transceivers, channels that are valid everywhere,
// and what counts otherwise. Plain data.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Types.h"

namespace orvelle::directory {

// Texts may hold {mhz} (118.300), {khz} (118300), {station} (BIKF_TWR), {airport} (BIKF) and {callsign} (the pilot's).
struct VoiceServer {
    Long Software = 0;  // of VoiceSoftware.h
    std::string Server;
    std::string Login;
    std::string Password;
    std::string Channel;  // where an entry names none; "{mhz}" where this is missing
};

struct VoiceEntry {
    std::string Server;  // a key of Directory::Servers
    std::optional<std::string> Channel;
};

struct Transceiver {
    int Kilohertz = 0;                   // the channel's name, normalised (Channels.h)
    double Latitude = 0, Longitude = 0;  // degrees
    double Height = 0;                   // metres above the sea
};

struct Station {
    std::string Callsign;
    std::vector<Transceiver> Transceivers;
    std::optional<double> Range;  // nautical miles
    VoiceEntry Voice;
};

struct EverywhereChannel {
    int Kilohertz = 0;
    VoiceEntry Voice;
};

struct Directory {
    std::string Name;
    std::map<std::string, VoiceServer> Servers;
    std::vector<Station> Stations;
    std::vector<EverywhereChannel> Everywhere;
    std::optional<VoiceEntry> Otherwise;
};

}  // namespace orvelle::directory
