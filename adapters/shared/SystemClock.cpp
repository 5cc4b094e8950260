#include "adapters/shared/SystemClock.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <thread>

namespace orvelle {

Long SystemClock::GetTickCount() {
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    const auto count = std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count();
    return static_cast<Long>(static_cast<std::uint32_t>(count));
}

void SystemClock::Sleep(Long milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(std::max<Long>(milliseconds, 0)));
}

}  // namespace orvelle
