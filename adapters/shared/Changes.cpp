#include "adapters/shared/Changes.h"

#include <utility>

namespace orvelle {

std::shared_ptr<void> Changes::Observe(std::function<void()> observer) {
    auto ticket = std::make_shared<Observer>(std::move(observer));
    observers.push_back(ticket);
    return ticket;
}

void Changes::Mark() {
    std::erase_if(observers, [](const auto& observer) { return observer.expired(); });
    if (marked || observers.empty()) return;
    marked = true;
    delivery.Raise([this] { Tell(); });
}

void Changes::Tell() {
    marked = false;
    // An observer may let go of its ticket, or of another's, while it is told.
    for (const auto& observer : std::vector(observers))
        if (const auto kept = observer.lock()) (*kept)();
}

}  // namespace orvelle
