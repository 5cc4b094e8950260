// The entries of a directory as they are read: servers, stations, channels everywhere, otherwise. Each that is sound is
// kept with its place; which servers they name is looked at when all were read, as servers may stand last. For the
// reader of directories.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "simulators/directory/DirectoryReading.h"
#include "simulators/directory/EntryFields.h"
#include "simulators/directory/JsonEntries.h"
#include "simulators/directory/Placeholders.h"

namespace orvelle::directory {

class DirectoryEntries {
public:
    explicit DirectoryEntries(Findings& all) : findings(all) {}

    void TakeServer(const JsonMember& member, const std::string& path);
    void TakeStation(const JsonValue& value, const std::string& path);
    void TakeEverywhere(const JsonValue& value, const std::string& path);
    void TakeOtherwise(const JsonValue& value);

    // Makes the content of those whose servers are there, and ends this object.
    void Join(ReadText& read);

private:
    template <typename Entry>
    struct Placed {
        Entry Content;
        EntryPlace Place;
        EntryPlace Voice;
        EntryPlace Name;  // that stands once
        bool IsSound;     // but for its voice, which is looked at last
    };
    // Nothing where it is not sound.
    std::optional<VoiceEntry> ReadVoice(const JsonValue& value, const std::string& path);
    std::optional<Transceiver> ReadTransceiver(const JsonValue& value, const std::string& path);
    bool IsSound(const VoiceEntry& voice, const EntryPlace& place, const Placeholders& values);
    template <typename Name>
    bool IsFirst(std::map<Name, std::size_t>& names, const Name& name, std::size_t line, const EntryPlace& place,
                 const std::string& shown);

    Findings& findings;
    std::map<std::string, VoiceServer> servers;
    std::map<std::string, EntryPlace> places;  // of servers
    std::set<std::string> leftOut;             // servers with a mistake
    std::vector<Placed<Station>> stations;
    std::vector<Placed<EverywhereChannel>> everywhere;
    std::optional<Placed<VoiceEntry>> otherwise;
};

}  // namespace orvelle::directory
