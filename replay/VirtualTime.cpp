#include "replay/VirtualTime.h"

#include <algorithm>
#include <tuple>

namespace orvelle::replay {

namespace {

constexpr auto IsEarlier = [](const auto& left, const auto& right) {
    return std::tie(left.At, left.Order) < std::tie(right.At, right.Order);
};

}  // namespace

Long VirtualTime::TickCount() const { return static_cast<Long>(tickOffset + static_cast<std::uint32_t>(elapsed)); }

void VirtualTime::SetTickCount(Long tickCount) {
    tickOffset = static_cast<std::uint32_t>(tickCount) - static_cast<std::uint32_t>(elapsed);
}

void VirtualTime::TurnOn(Timer& timer) { timers.push_back({&timer, elapsed + timer.Interval, ++order}); }

void VirtualTime::TurnOff(Timer& timer) {
    std::erase_if(timers, [&](const RunningTimer& running) { return running.Ticking == &timer; });
}

void VirtualTime::Schedule(Long milliseconds, Task task) {
    tasks.push_back({std::move(task), elapsed + milliseconds, ++order});
}

std::optional<Due> VirtualTime::TakeDue(std::int64_t moment) {
    const auto timer = std::min_element(timers.begin(), timers.end(), IsEarlier);
    const auto task = std::min_element(tasks.begin(), tasks.end(), IsEarlier);
    const bool timerIsFirst = timer != timers.end() && (task == tasks.end() || IsEarlier(*timer, *task));
    if (timerIsFirst) {
        if (timer->At > moment) return std::nullopt;
        elapsed = std::max(elapsed, timer->At);
        timer->At += timer->Ticking->Interval;
        return timer->Ticking;
    }
    if (task == tasks.end() || task->At > moment) return std::nullopt;
    elapsed = std::max(elapsed, task->At);
    const Task taken = std::move(task->What);
    tasks.erase(task);
    return std::visit([](auto what) -> Due { return what; }, taken);
}

}  // namespace orvelle::replay
