// Tells the deck that something which it shows has changed. Many changes in one turn of the loop give one call, made
// from the loop, so that the deck never runs inside a call of the panel. Any number of observers.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "adapters/shared/Delivery.h"

namespace orvelle {

class Changes {
public:
    explicit Changes(EventLoop& eventLoop) : delivery(eventLoop) {}

    // The observer is called after each burst of changes for as long as the returned ticket is kept.
    [[nodiscard]] std::shared_ptr<void> Observe(std::function<void()> observer);

    void Mark();  // something has changed

private:
    using Observer = std::function<void()>;

    void Tell();

    Delivery delivery;
    std::vector<std::weak_ptr<Observer>> observers;
    bool marked = false;
};

}  // namespace orvelle
