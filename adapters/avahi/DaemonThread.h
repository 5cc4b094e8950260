// The Avahi library at work on a thread of its own, since its calls wait for the daemon, and nothing here waits for
// them: a daemon or a message bus that hangs holds up the thread alone. The thread owns its work, and ends some time
// after this object has told it to. Where no thread can be had, the work is told that it misses the daemon. Used by the
// browser and the announcement.
#pragma once

#include <functional>
#include <memory>

#include "adapters/avahi/DaemonWork.h"
#include "platform/EventLoop.h"

namespace orvelle::avahi {

class DaemonThread {
public:
    using MakeWork = std::function<std::unique_ptr<DaemonWork>(std::shared_ptr<LoopInbox> inbox)>;

    // What the work posts is run in the loop while this object is there.
    DaemonThread(EventLoop& loop, const MakeWork& makeWork);
    DaemonThread(const DaemonThread&) = delete;
    DaemonThread& operator=(const DaemonThread&) = delete;
    ~DaemonThread();

private:
    struct Shared;

    std::shared_ptr<Shared> shared;
    Ticket posted;
};

}  // namespace orvelle::avahi
