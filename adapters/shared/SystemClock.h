// The computer's steady clock, counted from its start.
#pragma once

#include "platform/Clock.h"

namespace orvelle {

class SystemClock : public Clock {
public:
    Long GetTickCount() override;
    void Sleep(Long milliseconds) override;
};

}  // namespace orvelle
