// Keys that a panel would hold down on this computer, told by a test.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Observers.h"
#include "platform/sides/HeldKeysSide.h"

namespace orvelle {

class PlayedHeldKeys : public HeldKeysSide {
public:
    void Hold(std::vector<std::string> names) {
        held = std::move(names);
        observers.Tell();
    }

    std::vector<std::string> HeldKeys() override { return held; }
    Ticket Observe(std::function<void()> observer) override { return observers.Attach(std::move(observer)); }

private:
    std::vector<std::string> held;
    Observers<> observers;
};

}  // namespace orvelle
