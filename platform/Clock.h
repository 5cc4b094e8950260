// The panel's clock and its only wait. The tick count wraps after 2^32 ms and may be negative.
#pragma once

#include "platform/Types.h"

namespace orvelle {

class Clock {
public:
    virtual ~Clock() = default;

    virtual Long GetTickCount() = 0;  // milliseconds
    // Holds the thread up; no event is served meanwhile.
    virtual void Sleep(Long milliseconds) = 0;
};

}  // namespace orvelle
