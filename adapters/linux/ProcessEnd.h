// The end of a process that needn't be a child, told from the loop: by a descriptor that the kernel makes readable at
// that moment; a kernel that gives none (before 5.3, or with no descriptor left) is asked twice a second. A process
// has ended also while its parent hasn't taken notice of it yet. For readers of simulators.
#pragma once

#include <sys/types.h>

#include <functional>

#include "platform/EventLoop.h"

namespace orvelle::linux {

constexpr Long ProcessLookMilliseconds = 500;

enum class EndToldBy { Kernel, Looks };

// Runs the task once, also where there is no such process any more. The loop outlives the ticket.
[[nodiscard]] Ticket WhenProcessEnds(EventLoop& loop, pid_t process, std::function<void()> task,
                                     EndToldBy how = EndToldBy::Kernel);

}  // namespace orvelle::linux
