// Waits for a condition. The bound is for a test that fails; one that passes needs it on no machine.
#pragma once

#include <chrono>
#include <thread>

namespace orvelle::linux {

template <typename Condition>
bool WaitUntil(Condition condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

}  // namespace orvelle::linux
