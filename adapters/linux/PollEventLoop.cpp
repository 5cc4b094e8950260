#include "adapters/linux/PollEventLoop.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <system_error>
#include <utility>

namespace orvelle::linux {

void PollEventLoop::Run() {
    isStopped = false;
    while (!isStopped) {
        ForgetWhatEnded();
        RunReady(Patience());
        RunDue();
        RunPosted();
    }
}

Ticket PollEventLoop::After(Long milliseconds, Task task) {
    Attachment<> moment;
    Ticket ticket = moment.Begin(std::move(task));
    if (milliseconds > 0)
        later.emplace(Clock::now() + std::chrono::milliseconds(milliseconds), std::move(moment));
    else
        posted.push_back({nullptr, std::move(moment)});
    return ticket;
}

Ticket PollEventLoop::WhenReadable(int descriptor, Task task) { return Await(descriptor, POLLIN, std::move(task)); }
Ticket PollEventLoop::WhenWritable(int descriptor, Task task) { return Await(descriptor, POLLOUT, std::move(task)); }

Ticket PollEventLoop::Await(int descriptor, short events, Task task) {
    return watches.emplace_back(Watch{{descriptor, events, 0}, {}}).Ready.Begin(std::move(task));
}

void PollEventLoop::ForgetWhatEnded() {
    std::erase_if(later, [](const auto& each) { return each.second.HasEnded(); });
    std::erase_if(posted, [](const Next& next) { return !next.Posted && next.Due.HasEnded(); });
    std::erase_if(watches, [](const Watch& watch) { return watch.Ready.HasEnded(); });
}

// Milliseconds until there is something to do by the clock, -1 if there never is.
int PollEventLoop::Patience() const {
    using std::chrono::milliseconds;
    if (!posted.empty()) return 0;
    if (later.empty()) return -1;
    const auto left = std::chrono::ceil<milliseconds>(later.begin()->first - Clock::now());
    return static_cast<int>(std::clamp(left, milliseconds(0), milliseconds(std::numeric_limits<int>::max())).count());
}

void PollEventLoop::RunReady(int patience) {
    interests.clear();
    for (const Watch& watch : watches) interests.push_back(watch.Interest);
    const int ready = poll(interests.data(), interests.size(), patience);
    if (ready < 0 && errno != EINTR) throw std::system_error(errno, std::generic_category(), "poll");
    if (ready <= 0) return;
    for (std::size_t index = 0; index < interests.size() && !isStopped; ++index) {
        if (interests[index].revents == 0) continue;
        const Attachment<> readied = watches[index].Ready;  // tasks make watches meanwhile, behind these
        readied();
    }
}

void PollEventLoop::RunDue() {
    const Clock::time_point now = Clock::now();
    while (!isStopped && !later.empty() && later.begin()->first <= now) {
        const Attachment<> due = std::move(later.begin()->second);
        later.erase(later.begin());
        due();
    }
}

// What these post in turn waits for the next turn, so that the descriptors have theirs.
void PollEventLoop::RunPosted() {
    for (std::size_t left = posted.size(); left > 0 && !isStopped; --left) {
        const Next next = std::move(posted.front());
        posted.pop_front();
        next.Posted ? next.Posted() : next.Due();
    }
}

}  // namespace orvelle::linux
