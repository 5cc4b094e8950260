// An event loop that a test drives by hand, with a clock of its own. Tasks of one moment run in the order in which they
// were posted.
#pragma once

#include <functional>
#include <map>
#include <utility>

#include "platform/EventLoop.h"

namespace orvelle {

class HandLoop : public EventLoop {
public:
    void Post(std::function<void()> task) override { PostAfter(0, std::move(task)); }
    void PostAfter(Long milliseconds, std::function<void()> task) override {
        tasks.emplace(now + milliseconds, std::move(task));
    }

    // Runs what is due within the given time, and what that posts, if due within it as well.
    void Run(Long milliseconds = 0) {
        const Long end = now + milliseconds;
        while (!tasks.empty() && tasks.begin()->first <= end) {
            now = tasks.begin()->first;
            const auto task = std::move(tasks.begin()->second);
            tasks.erase(tasks.begin());
            task();
        }
        now = end;
    }

    bool Idle() const { return tasks.empty(); }

private:
    Long now = 0;
    std::multimap<Long, std::function<void()>> tasks;
};

}  // namespace orvelle
