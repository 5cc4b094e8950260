#include "adapters/linux/UrgentThread.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <functional>
#include <thread>

namespace orvelle::linux {
namespace {

// What a thread is after the call.
int PolicyOf(const std::function<void()>& call) {
    int policy = -1;
    std::thread([&] {
        call();
        policy = sched_getscheduler(0) & ~SCHED_RESET_ON_FORK;
    }).join();
    return policy;
}

TEST(UrgentThreadTest, IsUrgentWhereTheUserMayHaveThat) {
    const int allowed = PolicyOf([] {
        const sched_param least{sched_get_priority_min(SCHED_RR)};
        sched_setscheduler(0, SCHED_RR, &least);
    });
    EXPECT_EQ(PolicyOf(BecomeUrgent), allowed);
}

TEST(UrgentThreadTest, ThreadsThatItStartsAreNot) {
    int started = -1;
    PolicyOf([&] {
        BecomeUrgent();
        started = PolicyOf([] {});
    });
    EXPECT_EQ(started, SCHED_OTHER);
}

}  // namespace
}  // namespace orvelle::linux
