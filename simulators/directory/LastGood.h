// A directory as one place holds it now: the newest text of the place that is one counts, and what came after it and is
// none, or could not be had, is told beside it. For the sources of directories.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "simulators/directory/Directories.h"

namespace orvelle::directory {

class LastGood {
public:
    // As DirectoryTold::Source.
    explicit LastGood(const std::string& source) { found.Told.Source = good.Source = source; }

    // False for a text that is no directory, which is told as the trouble; then what counted before stays, as a copy.
    bool Take(std::string_view text);
    // What counts is the place's own still.
    void Confirm();
    // It could not be had: one sentence why.
    void Miss(const std::string& sentence);
    // What counts was read or confirmed so long ago, by an earlier run.
    void Date(long long seconds);

    const DirectorySource::Found& Now() const { return found; }

private:
    DirectorySource::Found found;
    DirectoryTold good;      // of the content
    std::size_t digest = 0;  // of its text
};

// Whether a user could tell them apart, but for their ages.
bool IsSame(const DirectorySource::Found& one, const DirectorySource::Found& other);

}  // namespace orvelle::directory
