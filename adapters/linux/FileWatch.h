// Tells when a named file appears, changes or goes, from the loop and within an instant, without looking again and
// again: its folder is watched (adapters/shared/FolderWatch.h). A file that is written in place is told when its writer
// closes it. Called by programs that take up a file while they run.
#pragma once

#include <sys/stat.h>

#include <filesystem>

#include "adapters/shared/FolderWatch.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::linux {

class FileWatch {
public:
    FileWatch(EventLoop& loop, const std::filesystem::path& watchedFile);
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;

    // It is there, is another one, or is there no more: the file is to be read again. Several changes of one moment are
    // told once; one that leaves it as it was may be told as well. The handler does not end this object.
    Event<> Changed;

private:
    struct stat State() const;
    void Compare();

    const std::filesystem::path file;
    FolderWatch folder;
    struct stat state {};  // of the file as it was told last
};

}  // namespace orvelle::linux
