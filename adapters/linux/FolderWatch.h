// Tells when a file of a folder was put in place, so that a change by another process is taken up without looking again
// and again. Called by whoever keeps files there.
#pragma once

#include <filesystem>

#include "adapters/linux/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::linux {

class FolderWatch {
public:
    // A folder that isn't there, or a system that has no watch left, tells nothing.
    FolderWatch(EventLoop& loop, const std::filesystem::path& folder);

    Event<> Changed;  // from the loop, once for what came together

private:
    FileDescriptor watch;
    Ticket readable;
};

}  // namespace orvelle::linux
