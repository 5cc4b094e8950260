#include "adapters/linux/UrgentThread.h"

#include <sched.h>

namespace orvelle::linux {

namespace {

constexpr int Priority = 4;  // above everything that is not urgent, below the sound servers' own 5 and more

}  // namespace

void BecomeUrgent() {
    const sched_param parameters{Priority};
    sched_setscheduler(0, SCHED_RR | SCHED_RESET_ON_FORK, &parameters);
}

}  // namespace orvelle::linux
