#include "adapters/avahi/DaemonThread.h"

#include <avahi-common/simple-watch.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <system_error>
#include <thread>
#include <utility>

#include "adapters/avahi/DaemonConnection.h"
#include "adapters/shared/SignalsHeldBack.h"

namespace orvelle::avahi {

struct DaemonThread::Shared {
    Shared() : End(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;
    ~Shared() {
        if (End >= 0) close(End);
    }

    const std::shared_ptr<LoopInbox> ToLoop = std::make_shared<LoopInbox>();
    const int End;  // readable when the thread shall end
};

namespace {

// Until `end` can be read from.
void Serve(int end, DaemonWork& work) {
    AvahiSimplePoll* const turns = avahi_simple_poll_new();
    if (turns == nullptr) return work.Miss();
    const AvahiPoll* const poll = avahi_simple_poll_get(turns);
    bool ends = false;
    const auto note = [](AvahiWatch*, int, AvahiWatchEvent, void* object) { *static_cast<bool*>(object) = true; };
    AvahiWatch* const watch = poll->watch_new(poll, end, AVAHI_WATCH_IN, note, &ends);
    {
        DaemonConnection connection(poll, work);
        while (!ends && avahi_simple_poll_iterate(turns, connection.Tend()) == 0) {
        }
    }
    poll->watch_free(watch);
    avahi_simple_poll_free(turns);
}

}  // namespace

DaemonThread::DaemonThread(EventLoop& loop, const MakeWork& makeWork) : shared(std::make_shared<Shared>()) {
    if (shared->ToLoop->Descriptor() < 0 || shared->End < 0) return;
    posted = loop.WhenReadable(shared->ToLoop->Descriptor(), [inbox = shared->ToLoop] { inbox->Run(); });
    const std::shared_ptr<DaemonWork> work = makeWork(shared->ToLoop);
    const SignalsHeldBack heldBack;
    try {
        std::thread([kept = shared, work] { Serve(kept->End, *work); }).detach();
    } catch (const std::system_error&) {
        work->Miss();
    }
}

DaemonThread::~DaemonThread() {
    shared->ToLoop->Close();
    eventfd_write(shared->End, 1);
}

}  // namespace orvelle::avahi
