// What the cases that every event loop passes are played with. A program of tests gives a driver of its loop, and names
// it in INSTANTIATE_TYPED_TEST_SUITE_P for each suite of cases:
//
//   std::unique_ptr<EventLoop> NewLoop();        the loop, which the cases may end
//   bool Until(EventLoop& loop, Condition isTrue);    serves it until the condition holds; false if it never does
//   std::vector<int> Failures;                   the numbers of the run-time errors that left a task
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "platform/EventLoop.h"

namespace orvelle {

template <typename Driver>
class EventLoopRig : public testing::Test {
protected:
    EventLoop::Task Note(int number) {
        return [this, number] { ran.push_back(number); };
    }
    bool RunUntil(const std::function<bool()>& isTrue) { return driver.Until(*loop, isTrue); }
    // Serves what is due by now, so that what should not come would have: what is made last runs last.
    void Settle(Long milliseconds = 0) {
        bool isReached = false;
        const Ticket ticket = loop->After(milliseconds, [&isReached] { isReached = true; });
        EXPECT_TRUE(RunUntil([&isReached] { return isReached; }));
    }

    Driver driver;
    std::unique_ptr<EventLoop> loop = driver.NewLoop();
    std::vector<int> ran;
};

}  // namespace orvelle
