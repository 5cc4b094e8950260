#include "adapters/shared/BackgroundWork.h"

#include <sys/eventfd.h>

#include <system_error>
#include <thread>
#include <utility>

#include "adapters/shared/SignalsHeldBack.h"

namespace orvelle {

BackgroundWork::BackgroundWork(EventLoop& loop, std::function<void()> work, std::function<void()> whenDone)
    : done(std::move(whenDone)),
      event(std::make_shared<const FileDescriptor>(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))),
      ready(Begin(std::move(work)) ? loop.WhenReadable(event->Number(), [this] { Take(); })
                                   : loop.After(0, [this] { Take(); })) {}

bool BackgroundWork::Begin(std::function<void()> work) const {
    if (!*event) return false;
    const SignalsHeldBack heldBack;
    try {
        std::thread([kept = event, work = std::move(work)] {
            work();
            eventfd_write(kept->Number(), 1);
        }).detach();
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

void BackgroundWork::Take() {
    ready.End();
    // What the thread has written before the event is there for whoever has read it.
    eventfd_t count = 0;
    eventfd_read(event->Number(), &count);
    const std::function<void()> call = std::move(done);
    call();
}

}  // namespace orvelle
