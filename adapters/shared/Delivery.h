// How a stand-in brings its events: by tasks of the event loop, never from inside a call, after a delay that can be
// set, and in the order in which they were raised. What waits dies with the owner and is dropped on demand.
#pragma once

#include <deque>
#include <functional>
#include <list>

#include "platform/EventLoop.h"

namespace orvelle {

class Delivery {
public:
    explicit Delivery(EventLoop& eventLoop);

    // Milliseconds from raising to bringing, 0 for the loop's next turn.
    void SetDelay(Long milliseconds) { delay = milliseconds; }
    Long Delay() const { return delay; }

    // Brings the event after the delay. It never overtakes one that was raised earlier, even if the delay shrank.
    void Raise(std::function<void()> event);
    // Brings the event after its own delay, apart from the order of the others.
    void RaiseAfter(Long milliseconds, std::function<void()> event);

    void Drop();  // forgets what waits

private:
    EventLoop& loop;
    std::deque<std::function<void()>> waiting;  // in their order
    std::list<Ticket> tickets;                  // of all that are scheduled
    Long delay = 0;
};

}  // namespace orvelle
