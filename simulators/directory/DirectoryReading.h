// Reads a directory from its text, and names each mistake by its line and its field, so that an operator finds it. An
// entry with a mistake is left out, the others count; a text that is no directory at all gives none. For the sources
// and for `orvelle-sim --check`. Nothing throws.
#pragma once

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

struct ReadText {
    std::optional<Directory> Content;
    std::vector<Fault> Faults;
    std::size_t FaultCount = 0;  // also of those beyond MostFaults
};

ReadText ReadDirectory(std::string_view text);

// What is no mistake, but hardly meant: two stations of one channel whose ranges overlap, a server that nobody names, a
// placeholder that is always empty there. By line, where it is known.
std::vector<Fault> FindOddities(const Directory& directory);

}  // namespace orvelle::directory
