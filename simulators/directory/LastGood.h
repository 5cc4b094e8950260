// A directory as one place holds it now: the newest text of the place that is one counts, and what came after it and is
// none, or could not be had, is told beside it. A text is read in the background, as a long one takes a second. For the
// sources of directories.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "adapters/shared/BackgroundWork.h"
#include "platform/EventLoop.h"
#include "simulators/directory/Directories.h"

namespace orvelle::directory {

class LastGood {
public:
    // `source` as DirectoryTold::Source.
    LastGood(EventLoop& eventLoop, const std::string& source) : loop(eventLoop) {
        found.Told.Source = good.Source = source;
    }
    LastGood(const LastGood&) = delete;
    LastGood& operator=(const LastGood&) = delete;

    // True where it is what counts already, which is confirmed; else it is being read, and Taken tells what it is. One
    // that comes meanwhile replaces it.
    bool Take(std::string text);
    bool IsReading() const { return reading != nullptr; }
    // What counts is the place's own still.
    void Confirm();
    // It could not be had: one sentence why. What is being read counts no more.
    void Miss(const std::string& sentence);
    // What counts was read or confirmed so long ago, by an earlier run.
    void Date(long long seconds);

    const DirectorySource::Found& Now() const { return found; }

    // Whether the text was a directory, from the loop; else that is told as the trouble, and what counted before stays,
    // as a copy. The handler doesn't end this object.
    Event<bool> Taken;

private:
    void Finish(const DirectorySource::Found& read, std::size_t itsDigest);

    EventLoop& loop;
    DirectorySource::Found found;
    DirectoryTold good;      // of the content
    std::size_t digest = 0;  // of its text
    std::unique_ptr<BackgroundWork> reading;
    std::optional<std::string> next;  // a newer text than the one that is being read
};

// Whether a user could tell them apart, but for their ages.
bool IsSame(const DirectorySource::Found& one, const DirectorySource::Found& other);

}  // namespace orvelle::directory
