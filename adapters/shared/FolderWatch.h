// Tells what happens in a folder, from the loop and within an instant, without looking again and again: which of its
// names came, changed or went, and that the folder itself did; until it is there, the nearest folder above it is
// watched. Only where the system has no watches left (they are counted by user) it is renewed every second. A file that
// is written in place is told when its writer closes it. Called by whoever takes up files while the program runs. The
// handlers don't end this object.
#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle {

class FolderWatch {
public:
    FolderWatch(EventLoop& eventLoop, const std::filesystem::path& watchedFolder);
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    Event<const std::set<std::string>&> Changed;  // these names; those of one moment together
    // It has come or gone, or nobody knows what has changed in it: all is to be looked at. After Changed.
    Event<> Renewed;

private:
    struct Woken {
        bool ByFolders = false;
        std::set<std::string> Names;
    };

    void Look();
    bool LookFrom();
    void Take();
    Woken TakeEvents();

    EventLoop& loop;
    const std::filesystem::path folder;
    const FileDescriptor events;
    int watched = -1;      // the folder's watch, or that of one above it
    bool isThere = false;  // the folder itself is watched
    std::string awaited;   // the name in the watched one, until it is there
    Ticket readable, later;
};

}  // namespace orvelle
