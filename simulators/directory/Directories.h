// All directories of this computer, from wherever they come, in the user's order: files of the folder directory.d by
// their names, then addresses in the order in which they were entered, then topics of the broker by theirs. Where one
// can't be had or read, its last good copy counts. Changes come from the loop; that a directory was confirmed, so that
// its age begins anew, is none.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Event.h"
#include "simulators/directory/DirectoryReading.h"
#include "simulators/directory/StationIndex.h"

namespace orvelle::directory {

// Asleep ones included; the time of day may jump.
long long SecondsSinceBoot();

// One of them, for the user to read.
struct DirectoryTold {
    std::string Source;  // the file's name, the address, or "topic NAME of c03"
    std::string Name;    // by its own word
    std::size_t Stations = 0;
    long long Age = -1;         // seconds since it was read or confirmed; -1 for never
    bool IsCopy = false;        // the last good one, as it could not be had
    std::string Trouble;        // one sentence on why, "" for none
    std::vector<Fault> Faults;  // of its text
    std::size_t FaultCount = 0;
};

// A place from which directories come: a folder, addresses, the broker. In each its own order.
class DirectorySource {
public:
    struct Found {
        std::shared_ptr<const Directory> Content;        // null where there is none
        DirectoryTold Told;                              // whose Age is left to ReadAt where that is there
        std::optional<long long> ReadAt = std::nullopt;  // or confirmed, by SecondsSinceBoot
    };

    virtual ~DirectorySource() = default;
    virtual const std::vector<Found>& Directories() const = 0;

    Event<> Changed;  // from the loop
};

class Directories {
public:
    // Sources in the user's order; they outlive this object, and their Changed is its.
    explicit Directories(std::vector<DirectorySource*> sources);

    // Of those that have content, in their order.
    const StationIndex& Index() const { return index; }
    std::vector<DirectoryTold> Told() const;

    Event<> Changed;

private:
    void Gather();

    const std::vector<DirectorySource*> sources;
    std::vector<DirectorySource::Found> gathered;
    StationIndex index;
};

}  // namespace orvelle::directory
