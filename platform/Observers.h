// A list of observers, told in the order in which they attached. An observer may, while it is told, end any ticket,
// attach others (they hear of what is told later), have something told in turn, and end the object that tells; what it
// throws passes through.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Ticket.h"

namespace orvelle {

template <typename... Arguments>
class Observers {
public:
    Observers() = default;
    Observers(const Observers&) = delete;
    Observers& operator=(const Observers&) = delete;
    ~Observers() { list->Attached.clear(); }

    [[nodiscard]] Ticket Attach(std::function<void(Arguments...)> observer) {
        if (list->Tellings == 0) std::erase_if(list->Attached, [](const auto& each) { return each.HasEnded(); });
        return list->Attached.emplace_back().Begin(std::move(observer));
    }

    bool IsEmpty() const {
        return std::all_of(list->Attached.begin(), list->Attached.end(),
                           [](const auto& each) { return each.HasEnded(); });
    }

    void Tell(Arguments... arguments) const {
        const Telling telling(list);
        const auto& attached = telling.Told->Attached;
        const std::size_t count = attached.size();
        // By index: the list may grow meanwhile, and is empty when this object is gone.
        for (std::size_t index = 0; index < std::min(count, attached.size()); ++index) attached[index](arguments...);
    }

private:
    struct List {
        std::vector<Attachment<Arguments...>> Attached;
        int Tellings = 0;  // under way
    };

    // Keeps the list, and each place in it, while it is told.
    struct Telling {
        explicit Telling(std::shared_ptr<List> told) : Told(std::move(told)) { ++Told->Tellings; }
        Telling(const Telling&) = delete;
        Telling& operator=(const Telling&) = delete;
        ~Telling() { --Told->Tellings; }

        const std::shared_ptr<List> Told;
    };

    const std::shared_ptr<List> list = std::make_shared<List>();
};

}  // namespace orvelle
