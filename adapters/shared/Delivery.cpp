#include "adapters/shared/Delivery.h"

#include <utility>

namespace orvelle {

Delivery::Delivery(EventLoop& eventLoop) : loop(eventLoop) {}

void Delivery::Raise(std::function<void()> event) {
    if (stopped) return;
    waiting->push_back(std::move(event));
    Schedule(delay, [queue = std::weak_ptr(waiting)] {
        std::function<void()> next;
        if (const auto events = queue.lock(); events && !events->empty()) {
            next = std::move(events->front());
            events->pop_front();
        }
        if (next) next();
    });
}

void Delivery::RaiseAfter(Long milliseconds, std::function<void()> event) {
    if (stopped) return;
    Schedule(milliseconds, [queue = std::weak_ptr(waiting), event = std::move(event)] {
        if (!queue.expired()) event();
    });
}

void Delivery::Drop() { waiting = std::make_shared<Waiting>(); }

void Delivery::Stop() {
    Drop();
    stopped = true;
}

void Delivery::Schedule(Long milliseconds, std::function<void()> task) {
    if (milliseconds > 0)
        loop.PostAfter(milliseconds, std::move(task));
    else
        loop.Post(std::move(task));
}

}  // namespace orvelle
