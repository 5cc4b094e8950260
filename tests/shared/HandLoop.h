// An event loop that a test drives by hand, with a clock of its own; descriptors are ready when the test says so. Keeps
// the order that every event loop keeps.
#pragma once

#include <algorithm>
#include <map>
#include <utility>

#include "platform/EventLoop.h"
#include "platform/Observers.h"

namespace orvelle {

class HandLoop : public EventLoop {
public:
    void Post(Task task) override {
        Moment& moment = tasks.emplace(now, Moment())->second;
        moment.Posted = moment.Due.Begin(std::move(task));
    }
    [[nodiscard]] Ticket After(Long milliseconds, Task task) override {
        return tasks.emplace(now + std::max<Long>(milliseconds, 0), Moment())->second.Due.Begin(std::move(task));
    }
    [[nodiscard]] Ticket WhenReadable(int descriptor, Task task) override {
        return readable[descriptor].Attach(std::move(task));
    }
    [[nodiscard]] Ticket WhenWritable(int descriptor, Task task) override {
        return writable[descriptor].Attach(std::move(task));
    }

    // Runs what is due within the given time, and what that posts, if due within it as well.
    void Run(Long milliseconds = 0) {
        const Long end = now + milliseconds;
        while (!tasks.empty() && tasks.begin()->first <= end) {
            now = tasks.begin()->first;
            const Moment moment = std::move(tasks.begin()->second);
            tasks.erase(tasks.begin());
            moment.Due();
        }
        now = end;
    }
    // Run who waits for the descriptor, once.
    void BringReadable(int descriptor) { readable[descriptor].Tell(); }
    void BringWritable(int descriptor) { writable[descriptor].Tell(); }

    bool Idle() const {
        return std::all_of(tasks.begin(), tasks.end(), [](const auto& each) { return each.second.Due.HasEnded(); });
    }

private:
    struct Moment {
        Attachment<> Due;
        Ticket Posted;  // of what is posted, kept by the loop
    };

    Long now = 0;
    std::multimap<Long, Moment> tasks;
    std::map<int, Observers<>> readable;
    std::map<int, Observers<>> writable;
};

}  // namespace orvelle
