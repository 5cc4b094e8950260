#include "adapters/shared/Delivery.h"

#include <utility>

namespace orvelle {

Delivery::Delivery(EventLoop& eventLoop) : loop(eventLoop) {}

void Delivery::Raise(std::function<void()> event) {
    waiting.push_back(std::move(event));
    RaiseAfter(delay, [this] {
        const std::function<void()> next = std::move(waiting.front());
        waiting.pop_front();
        next();
    });
}

void Delivery::Drop() {
    tickets.clear();
    waiting.clear();
}

// The event may end this object, so its ticket is put away first.
void Delivery::RaiseAfter(Long milliseconds, std::function<void()> event) {
    const auto ticket = tickets.emplace(tickets.end());
    *ticket = loop.After(milliseconds, [this, ticket, event = std::move(event)] {
        tickets.erase(ticket);
        event();
    });
}

}  // namespace orvelle
