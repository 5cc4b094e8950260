#include "adapters/avahi/AvahiLoop.h"

#include <sys/time.h>

#include <algorithm>
#include <limits>

// The library leaves these two to whoever brings the loop.

struct AvahiWatch {
    AvahiWatch(orvelle::EventLoop& eventLoop, int watched, AvahiWatchCallback toCall, void* object)
        : loop(eventLoop), descriptor(watched), call(toCall), userData(object) {}

    void Await(AvahiWatchEvent events) {
        readable = (events & AVAHI_WATCH_IN) != 0 ? loop.WhenReadable(descriptor, [this] { Bring(AVAHI_WATCH_IN); })
                                                  : orvelle::Ticket();
        writable = (events & AVAHI_WATCH_OUT) != 0 ? loop.WhenWritable(descriptor, [this] { Bring(AVAHI_WATCH_OUT); })
                                                   : orvelle::Ticket();
    }
    AvahiWatchEvent Brought() const { return brought; }

private:
    void Bring(AvahiWatchEvent event) {
        brought = event;
        call(this, descriptor, event, userData);  // may free this
    }

    orvelle::EventLoop& loop;
    const int descriptor;
    const AvahiWatchCallback call;
    void* const userData;
    AvahiWatchEvent brought{};
    orvelle::Ticket readable, writable;
};

struct AvahiTimeout {
    AvahiTimeout(orvelle::EventLoop& eventLoop, AvahiTimeoutCallback toCall, void* object)
        : loop(eventLoop), call(toCall), userData(object) {}

    // By the time of day; null for never.
    void Await(const timeval* when) {
        due.End();
        if (when == nullptr) return;
        constexpr long long Thousand = 1000;
        timeval now{};
        gettimeofday(&now, nullptr);
        const long long microseconds =
            (static_cast<long long>(when->tv_sec) - now.tv_sec) * Thousand * Thousand + when->tv_usec - now.tv_usec;
        const long long left = std::clamp<long long>((microseconds + Thousand - 1) / Thousand, 0,
                                                     std::numeric_limits<orvelle::Long>::max());
        due = loop.After(static_cast<orvelle::Long>(left), [this] { call(this, userData); });
    }

private:
    orvelle::EventLoop& loop;
    const AvahiTimeoutCallback call;
    void* const userData;
    orvelle::Ticket due;
};

namespace orvelle::avahi {

namespace {

EventLoop& LoopOf(const AvahiPoll* poll) { return *static_cast<EventLoop*>(poll->userdata); }

AvahiWatch* NewWatch(const AvahiPoll* poll, int descriptor, AvahiWatchEvent events, AvahiWatchCallback call,
                     void* object) {
    auto* const watch = new AvahiWatch(LoopOf(poll), descriptor, call, object);
    watch->Await(events);
    return watch;
}

AvahiTimeout* NewTimeout(const AvahiPoll* poll, const timeval* when, AvahiTimeoutCallback call, void* object) {
    auto* const timeout = new AvahiTimeout(LoopOf(poll), call, object);
    timeout->Await(when);
    return timeout;
}

}  // namespace

AvahiLoop::AvahiLoop(EventLoop& loop) {
    poll.userdata = &loop;
    poll.watch_new = NewWatch;
    poll.watch_update = [](AvahiWatch* watch, AvahiWatchEvent events) { watch->Await(events); };
    poll.watch_get_events = [](AvahiWatch* watch) { return watch->Brought(); };
    poll.watch_free = [](AvahiWatch* watch) { delete watch; };
    poll.timeout_new = NewTimeout;
    poll.timeout_update = [](AvahiTimeout* timeout, const timeval* when) { timeout->Await(when); };
    poll.timeout_free = [](AvahiTimeout* timeout) { delete timeout; };
}

}  // namespace orvelle::avahi
