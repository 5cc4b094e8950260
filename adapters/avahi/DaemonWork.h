// What is done with the Avahi daemon: on the library's thread alone, so that it may wait, and touches nothing of the
// program's. What it finds out it posts to the loop. Derived by the browser's and the announcement's work.
#pragma once

#include <avahi-client/client.h>

#include <functional>
#include <memory>
#include <utility>

#include "adapters/shared/LoopInbox.h"

namespace orvelle::avahi {

class DaemonWork {
public:
    explicit DaemonWork(std::shared_ptr<LoopInbox> inbox) : toLoop(std::move(inbox)) {}
    DaemonWork(const DaemonWork&) = delete;
    DaemonWork& operator=(const DaemonWork&) = delete;
    virtual ~DaemonWork() = default;

    // The daemon serves; also again, as when the computer's own name has changed.
    virtual void Begin(AvahiClient* client) = 0;
    // What was made with the client is to be forgotten: it goes with it.
    virtual void Forget() = 0;
    // There is no daemon.
    virtual void Miss() = 0;

protected:
    void ToLoop(std::function<void()> task) const { toLoop->Post(std::move(task)); }

private:
    const std::shared_ptr<LoopInbox> toLoop;
};

}  // namespace orvelle::avahi
