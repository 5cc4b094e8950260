// Serves a loop until a condition holds. The bound is for a machine in trouble; a test never needs it.
#pragma once

#include <chrono>
#include <functional>

#include "adapters/linux/PollEventLoop.h"

namespace orvelle::linux {

inline bool ServeUntil(PollEventLoop& loop, const std::function<bool()>& isSo) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    bool holds = false;
    Ticket next;
    const std::function<void()> look = [&] {
        holds = isSo();
        if (holds || std::chrono::steady_clock::now() > end) return loop.Stop();
        next = loop.After(1, look);
    };
    loop.Post(look);
    loop.Run();
    return holds;
}

}  // namespace orvelle::linux
