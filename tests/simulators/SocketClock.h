// An event loop with a clock that a test drives and descriptors that are the system's own: what has come is served
// between two steps of the clock.
#pragma once

#include <poll.h>

#include <map>
#include <utility>
#include <vector>

#include "platform/Ticket.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::simulators {

class SocketClock : public HandLoop {
public:
    [[nodiscard]] Ticket WhenReadable(int descriptor, Task task) override {
        return readable[descriptor].Begin(std::move(task));
    }

    // Runs who waits for what has come, until nothing more comes for a moment of real time, where packets may be on
    // their way: they take one from socket to socket, even of one computer.
    enum class Way { MayHold, IsEmpty };
    void Serve(Way way = Way::MayHold) {
        constexpr int Bound = 10000;  // turns
        for (int turn = 0; turn < Bound; ++turn) {
            std::vector<pollfd> waiting;
            std::erase_if(readable, [](const auto& each) { return each.second.HasEnded(); });
            for (const auto& [descriptor, task] : readable) waiting.push_back({descriptor, POLLIN, 0});
            if (poll(waiting.data(), waiting.size(), way == Way::MayHold ? 1 : 0) <= 0) return;
            for (const pollfd& each : waiting) {
                const auto found = readable.find(each.fd);
                if (each.revents == 0 || found == readable.end()) continue;
                const Attachment<> task = found->second;  // what it runs may open other descriptors
                task();
            }
        }
    }

private:
    std::map<int, Attachment<>> readable;
};

}  // namespace orvelle::simulators
