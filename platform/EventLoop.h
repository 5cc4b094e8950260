// The one event loop, for adapters that have to wait: a task is run from the loop, on its thread, never from inside
// the call that posted it. Tasks of one moment run in the order in which they were posted.
#pragma once

#include <functional>

#include "platform/Types.h"

namespace orvelle {

class EventLoop {
public:
    virtual ~EventLoop() = default;

    virtual void Post(std::function<void()> task) = 0;
    virtual void PostAfter(Long milliseconds, std::function<void()> task) = 0;
};

}  // namespace orvelle
