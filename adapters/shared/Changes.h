// Tells the deck that something which it shows has changed. Many changes in one turn of the loop give one call, made
// from the loop, so that the deck never runs inside a call of the panel. Any number of observers.
#pragma once

#include <functional>
#include <utility>

#include "platform/EventLoop.h"
#include "platform/Observers.h"

namespace orvelle {

class Changes {
public:
    explicit Changes(EventLoop& eventLoop) : loop(eventLoop) {}

    // The observer is called after each burst of changes for as long as the ticket is kept.
    [[nodiscard]] Ticket Observe(std::function<void()> observer) { return observers.Attach(std::move(observer)); }

    void Mark();  // something has changed

private:
    EventLoop& loop;
    Observers<> observers;
    bool isMarked = false;
    Ticket telling;
};

}  // namespace orvelle
