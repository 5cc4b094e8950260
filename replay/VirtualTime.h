// The clock of a run, which only the panel's waits and the scenario move, and what falls due on it: ticks of the timers
// that are on, and scheduled stimuli. What falls due at one moment comes in the order in which it was turned on or
// scheduled. Setting the tick count leaves the time that is left of each as it is.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

#include "platform/Windows.h"
#include "platform/controls/Timer.h"

namespace orvelle::replay {

// A message for a window or, without one, for the thread; or anything else that is done when its time has come.
using Task = std::variant<WindowMessage, std::function<void()>>;
using Due = std::variant<Timer*, WindowMessage, std::function<void()>>;

class VirtualTime {
public:
    // Milliseconds since the start of the run.
    std::int64_t Elapsed() const { return elapsed; }
    Long TickCount() const;
    void SetTickCount(Long tickCount);
    // Time never goes back.
    void MoveTo(std::int64_t moment) { elapsed = std::max(elapsed, moment); }

    void TurnOn(Timer& timer);
    void TurnOff(Timer& timer);
    void Schedule(Long milliseconds, Task task);

    // Takes what falls due first, at `moment` at the latest, and moves the time on to it.
    std::optional<Due> TakeDue(std::int64_t moment);

private:
    struct RunningTimer {
        Timer* Ticking;
        std::int64_t At;
        std::uint64_t Order;
    };
    struct ScheduledTask {
        Task What;
        std::int64_t At;
        std::uint64_t Order;
    };

    std::int64_t elapsed = 0;
    std::uint32_t tickOffset = 0;
    std::uint64_t order = 0;
    std::vector<RunningTimer> timers;
    std::vector<ScheduledTask> tasks;
};

}  // namespace orvelle::replay
