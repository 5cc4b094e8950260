// Reads a directory from its text, and names each mistake by its line and its field, so that an operator finds it. An
// entry with a mistake is left out, and so is what names a server that is left out; the others count. A transceiver is
// an entry, too. A text that is no directory at all, or breaks off, gives none. For the sources and for
// `orvelle-sim --check`. Nothing throws.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulators/directory/Directory.h"

namespace orvelle::directory {

constexpr std::size_t LongestDirectory = 16 * 1024 * 1024;  // bytes
constexpr std::size_t MostFaults = 100;                     // that are named; the rest is counted

struct Fault {
    std::size_t Line = 0;  // from 1
    std::string Field;     // "stations[3].transceivers[0].latDeg"
    std::string Sentence;  // "91 is no latitude: -90 to 90 degrees."
};

// Where an entry stands in the text.
struct EntryPlace {
    std::size_t Line = 0;
    std::string Field;  // "stations[3]"
};

struct ReadText {
    std::optional<Directory> Content;
    std::vector<Fault> Faults;   // by line
    std::size_t FaultCount = 0;  // also of those beyond MostFaults
    std::vector<Fault> Unknown;  // members that mean nothing here, each name once: no mistake, as exports have many
    // Of the content's entries, in its order.
    std::map<std::string, EntryPlace> Servers;
    std::vector<EntryPlace> Stations, Everywhere;
    EntryPlace Otherwise;
};

ReadText ReadDirectory(std::string_view text);

// What is no mistake, but hardly meant, by line: members that mean nothing here, two stations of one channel whose
// ranges overlap, a server that nobody names, a placeholder that is always empty there or is none.
std::vector<Fault> FindOddities(const ReadText& read);

}  // namespace orvelle::directory
