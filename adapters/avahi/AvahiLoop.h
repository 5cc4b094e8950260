// The program's loop as the Avahi library asks for it: descriptors and times that it waits for are waited for in our
// loop, and its calls come on the loop's thread. Outlives the client that is made with it.
#pragma once

#include <avahi-common/watch.h>

#include "platform/EventLoop.h"

namespace orvelle::avahi {

class AvahiLoop {
public:
    explicit AvahiLoop(EventLoop& loop);
    AvahiLoop(const AvahiLoop&) = delete;
    AvahiLoop& operator=(const AvahiLoop&) = delete;

    const AvahiPoll* Poll() const { return &poll; }

private:
    AvahiPoll poll{};
};

}  // namespace orvelle::avahi
