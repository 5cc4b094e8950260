// What would hold up the loop for long, done on a thread of its own, which touches nothing of its asker and may outlive
// it; that it is done comes by the loop. Called by whoever waits for the system, or reads much. Where no thread can be
// had, its end is told all the same, with nothing done.
#pragma once

#include <functional>
#include <memory>

#include "adapters/shared/FileDescriptor.h"
#include "platform/EventLoop.h"

namespace orvelle {

class BackgroundWork {
public:
    // `work` owns what it uses or shares it with `done`, which reads it when it is called: once, from the loop, unless
    // this object goes before; it may end this object. `work` does not throw.
    BackgroundWork(EventLoop& loop, std::function<void()> work, std::function<void()> done);
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;

private:
    bool Begin(std::function<void()> work) const;
    void Take();

    std::function<void()> done;
    const std::shared_ptr<const FileDescriptor> event;  // of the system: the work is done
    Ticket ready;
};

}  // namespace orvelle
