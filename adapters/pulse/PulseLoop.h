// Joins the sound server's client library to our event loop: what the library waits for, descriptors, moments and idle
// turns, becomes tasks of the loop, so that it needs no thread and never blocks. Whoever talks to the sound server
// makes its contexts with Api(), and lets all of them go before this object, which the loop outlives.
#pragma once

#include <pulse/mainloop-api.h>

#include "platform/EventLoop.h"

namespace orvelle::pulse {

class PulseLoop {
public:
    explicit PulseLoop(EventLoop& eventLoop);
    PulseLoop(const PulseLoop&) = delete;
    PulseLoop& operator=(const PulseLoop&) = delete;

    pa_mainloop_api* Api() { return &api; }
    EventLoop& Loop() { return loop; }

private:
    EventLoop& loop;
    pa_mainloop_api api{};
};

}  // namespace orvelle::pulse
