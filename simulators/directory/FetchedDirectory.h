// The directory of one address: its last good copy, and what comes of fetching it anew. After a trouble it is fetched
// again by itself, sooner than every address is. For the addresses.
#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "platform/EventLoop.h"
#include "simulators/directory/DirectoryCopy.h"
#include "simulators/directory/HttpsFetch.h"
#include "simulators/directory/LastGood.h"

namespace orvelle::directory {

class FetchedDirectory {
public:
    // Begins to read the copy of an earlier run.
    FetchedDirectory(EventLoop& eventLoop, const std::filesystem::path& copies, const std::string& itsAddress);

    const std::string& Address() const { return address; }
    const DirectorySource::Found& Now() const { return kept.Now(); }
    // Nothing where it is under way; after the reading where its text is being read.
    void Fetch();
    // The address counts no more.
    void Remove();

    Event<> Changed;                 // fetched or not
    Event<const std::string&> Told;  // each trouble once, until it is over; before Changed

private:
    void Take(const FetchEnd& how);
    void TakeRead(bool isDirectory);
    void Finish(const std::string& trouble);
    void TellChange();

    EventLoop& loop;
    const std::string address;
    const DirectoryCopy copy;
    LastGood kept;
    HttpsFetch fetch;
    std::set<std::string> told;
    Long pause;            // after the next trouble, milliseconds
    bool isAsked = false;  // to be fetched after the reading
    Ticket again;
};

}  // namespace orvelle::directory
