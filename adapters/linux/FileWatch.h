// Tells when a named file appears, changes or goes, from the loop and within an instant, without looking again and
// again: its folder is watched, or the nearest folder above it until it is there. Only where the system has no watches
// left (they are counted by user) the file is looked at every second. A file that is written in place is told when its
// writer closes it. Called by programs that take up a file while they run.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::linux {

class FileWatch {
public:
    FileWatch(EventLoop& eventLoop, const std::filesystem::path& watchedFile);
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;

    // It is there, is another one, or is there no more: the file is to be read again. Several changes of one moment are
    // told once; one that leaves it as it was may be told as well. The handler does not end this object.
    Event<> Changed;

private:
    struct Woken {
        bool ByFolders = false;
        bool ByFile = false;
    };

    void Look();
    bool LookFrom(const std::filesystem::path& folder);
    void Take();
    Woken TakeEvents();
    struct stat State() const;
    void Compare();
    void LookLater();

    EventLoop& loop;
    const std::filesystem::path file;
    const FileDescriptor events;
    int watched = -1;      // the folder's watch
    std::string awaited;   // the name in it that matters
    bool isThere = false;  // the file's own folder is watched
    struct stat state {};  // of the file as it was told last
    Ticket readable, later;
};

}  // namespace orvelle::linux
