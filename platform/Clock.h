// The panel's clock and its only wait. The tick count wraps after 2^32 ms and may be negative.
#pragma once

#include "platform/Types.h"

namespace orvelle {

// `later` minus `earlier`, wrapping as the tick count does.
constexpr Long TickDifference(Long later, Long earlier) {
    return static_cast<Long>(static_cast<std::uint32_t>(later) - static_cast<std::uint32_t>(earlier));
}

class Clock {
public:
    virtual ~Clock() = default;

    virtual Long GetTickCount() = 0;  // milliseconds
    // Holds the thread up; no event is served meanwhile.
    virtual void Sleep(Long milliseconds) = 0;
};

}  // namespace orvelle
