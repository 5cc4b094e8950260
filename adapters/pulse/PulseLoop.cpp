#include "adapters/pulse/PulseLoop.h"

#include <pulse/timeval.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

// The library leaves these types to the loop. Each runs its task for as long as it is wanted; an ended ticket is how
// one that is freed inside its own call is not touched any more.
using orvelle::EventLoop;
using orvelle::Long;
using orvelle::Ticket;

struct pa_io_event {
    EventLoop& Loop;
    pa_mainloop_api* Api;
    int Descriptor;
    pa_io_event_cb_t Call;
    void* User;
    pa_io_event_destroy_cb_t AtEnd = nullptr;
    pa_io_event_flags_t Wanted = PA_IO_EVENT_NULL;
    std::optional<Ticket> Readable = {};  // while that is awaited
    Ticket Writable = {};
};

struct pa_time_event {
    EventLoop& Loop;
    pa_mainloop_api* Api;
    pa_time_event_cb_t Call;
    void* User;
    pa_time_event_destroy_cb_t AtEnd = nullptr;
    timeval Moment = {};
    Ticket Due = {};
};

struct pa_defer_event {
    EventLoop& Loop;
    pa_mainloop_api* Api;
    pa_defer_event_cb_t Call;
    void* User;
    pa_defer_event_destroy_cb_t AtEnd = nullptr;
    Ticket Next = {};
};

namespace orvelle::pulse {

namespace {

EventLoop& LoopOf(pa_mainloop_api* api) { return static_cast<PulseLoop*>(api->userdata)->Loop(); }

template <typename PulseEvent>
void Free(PulseEvent* event) {
    if (event->AtEnd) event->AtEnd(event->Api, event, event->User);
    delete event;
}

// Our loop tells the end and errors of a descriptor as both kinds. The library finds them as it reads or writes then.
void RunDescriptor(pa_io_event* event, pa_io_event_flags_t kind) {
    event->Call(event->Api, event, event->Descriptor, kind, event->User);
}

void Read(pa_io_event* event) {
    if (event->Wanted & PA_IO_EVENT_INPUT) return RunDescriptor(event, PA_IO_EVENT_INPUT);
    event->Readable.reset();
}

// The library takes its wish to read back and renews it with each message: what stands is kept until it disturbs.
void Enable(pa_io_event* event, pa_io_event_flags_t flags) {
    const int before = std::exchange(event->Wanted, flags);
    if ((flags & PA_IO_EVENT_INPUT) && !event->Readable)
        event->Readable = event->Loop.WhenReadable(event->Descriptor, [event] { Read(event); });
    if (((before ^ flags) & PA_IO_EVENT_OUTPUT) == 0) return;
    event->Writable.End();
    if (flags & PA_IO_EVENT_OUTPUT)
        event->Writable =
            event->Loop.WhenWritable(event->Descriptor, [event] { RunDescriptor(event, PA_IO_EVENT_OUTPUT); });
}

pa_io_event* NewDescriptor(pa_mainloop_api* api, int descriptor, pa_io_event_flags_t flags, pa_io_event_cb_t call,
                           void* user) {
    auto* const event = new pa_io_event{LoopOf(api), api, descriptor, call, user};
    Enable(event, flags);
    return event;
}

// Moments come by the wall clock, and are awaited as a time from now on, which a clock that is set leaves alone.
void Restart(pa_time_event* event, const timeval* moment) {
    event->Due.End();
    if (!moment) return;
    event->Moment = *moment;
    timeval now{};
    pa_gettimeofday(&now);
    const pa_usec_t left = pa_timeval_cmp(moment, &now) > 0 ? pa_timeval_diff(moment, &now) : 0;
    constexpr pa_usec_t Most = std::numeric_limits<Long>::max();
    event->Due = event->Loop.After(static_cast<Long>(std::min((left + 999) / 1000, Most)),
                                   [event] { event->Call(event->Api, event, &event->Moment, event->User); });
}

pa_time_event* NewMoment(pa_mainloop_api* api, const timeval* moment, pa_time_event_cb_t call, void* user) {
    auto* const event = new pa_time_event{LoopOf(api), api, call, user};
    Restart(event, moment);
    return event;
}

void EnableIdle(pa_defer_event* event, int isWanted) {
    event->Next.End();
    if (!isWanted) return;
    event->Next = event->Loop.After(0, [event] {
        EnableIdle(event, 1);  // it comes every turn until it is switched off
        event->Call(event->Api, event, event->User);
    });
}

pa_defer_event* NewIdle(pa_mainloop_api* api, pa_defer_event_cb_t call, void* user) {
    auto* const event = new pa_defer_event{LoopOf(api), api, call, user};
    EnableIdle(event, 1);
    return event;
}

}  // namespace

PulseLoop::PulseLoop(EventLoop& eventLoop) : loop(eventLoop) {
    api.userdata = this;
    api.io_new = &NewDescriptor;
    api.io_enable = &Enable;
    api.io_free = &Free<pa_io_event>;
    api.io_set_destroy = [](pa_io_event* event, pa_io_event_destroy_cb_t atEnd) { event->AtEnd = atEnd; };
    api.time_new = &NewMoment;
    api.time_restart = &Restart;
    api.time_free = &Free<pa_time_event>;
    api.time_set_destroy = [](pa_time_event* event, pa_time_event_destroy_cb_t atEnd) { event->AtEnd = atEnd; };
    api.defer_new = &NewIdle;
    api.defer_enable = &EnableIdle;
    api.defer_free = &Free<pa_defer_event>;
    api.defer_set_destroy = [](pa_defer_event* event, pa_defer_event_destroy_cb_t atEnd) { event->AtEnd = atEnd; };
    api.quit = [](pa_mainloop_api*, int) {};
}

}  // namespace orvelle::pulse
