// The keys that the panel holds down on this computer, for whoever shows them to its user.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/Ticket.h"

namespace orvelle {

class HeldKeysSide {
public:
    virtual ~HeldKeysSide() = default;

    // By the names that the panel shows for them, in the order of a keyboard's places.
    virtual std::vector<std::string> HeldKeys() = 0;
    // Called from the loop after each burst of changes, for as long as the ticket is kept.
    [[nodiscard]] virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
