// Directories as files *.json of a folder, by default directory.d in the data folder: read at the start, and again
// whenever one comes, changes or goes. Links are followed; what is no plain file or too long is told and left out.
#pragma once

#include <filesystem>

#include "adapters/shared/FileDescriptor.h"
#include "platform/EventLoop.h"
#include "simulators/directory/Directories.h"

namespace orvelle::directory {

class DirectoryFolder : public DirectorySource {
public:
    // The folder may come later.
    DirectoryFolder(EventLoop& eventLoop, std::filesystem::path folder);

    const std::vector<Found>& Directories() const override { return found; }

private:
    EventLoop& loop;
    const std::filesystem::path folder;
    std::vector<Found> found;
};

}  // namespace orvelle::directory
