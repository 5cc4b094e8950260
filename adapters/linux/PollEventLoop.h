// The event loop of a program without windows, over poll(2) and the monotonic clock; it needs no toolkit. On purpose it
// is not safe for several threads: whatever is called is called on the thread that runs it. Sleeps while nothing waits.
#pragma once

#include <poll.h>

#include <chrono>
#include <deque>
#include <map>
#include <vector>

#include "platform/EventLoop.h"

namespace orvelle::linux {

class PollEventLoop : public EventLoop {
public:
    // Serves the loop until Stop. What leaves a task leaves Run, which can be called again. Not called by a task.
    // std::system_error where the system has no memory for the descriptors.
    void Run();
    // Lets Run return when the task under way has; what waits then stays for the next Run.
    void Stop() { isStopped = true; }

    void Post(Task task) override { posted.push_back({std::move(task), {}}); }
    [[nodiscard]] Ticket After(Long milliseconds, Task task) override;
    [[nodiscard]] Ticket WhenReadable(int descriptor, Task task) override;
    [[nodiscard]] Ticket WhenWritable(int descriptor, Task task) override;

private:
    using Clock = std::chrono::steady_clock;

    struct Watch {
        pollfd Interest;
        Attachment<> Ready;
    };

    Ticket Await(int descriptor, short events, Task task);
    void ForgetWhatEnded();
    int Patience() const;
    void RunReady(int patience);
    void RunDue();
    void RunPosted();

    // In one order: what was posted, and what a ticket still stands for.
    struct Next {
        Task Posted;
        Attachment<> Due;
    };

    std::deque<Next> posted;
    std::multimap<Clock::time_point, Attachment<>> later;
    std::vector<Watch> watches;
    std::vector<pollfd> interests;  // of the watches, kept for its memory
    bool isStopped = false;
};

}  // namespace orvelle::linux
