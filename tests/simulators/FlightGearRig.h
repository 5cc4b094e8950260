// FlightGear as its reader meets it: lines that come over real sockets of this computer, from processes that the test
// names, on a clock that the test drives.
#pragma once

#include <gtest/gtest.h>
#include <netinet/in.h>

#include <map>
#include <string>
#include <utility>

#include "platform/Observers.h"
#include "simulators/UdpSocket.h"
#include "simulators/flightgear/FlightGearLine.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::simulators {

// Knows the socket that waits.
class SocketLoop : public HandLoop {
public:
    [[nodiscard]] Ticket WhenReadable(int descriptor, Task task) override {
        waiting = descriptor;
        return HandLoop::WhenReadable(descriptor, std::move(task));
    }
    void BringLines() { BringReadable(waiting); }

private:
    int waiting = -1;
};

class LoopbackSocket {
public:
    LoopbackSocket() { EXPECT_TRUE(BindUdp(socket, {INADDR_LOOPBACK, 0})); }
    std::uint16_t Port() const { return PlaceOf(socket).Port; }
    void Send(std::uint16_t receiver, const std::string& text) {
        EXPECT_EQ(SendUdp(socket, text, {INADDR_LOOPBACK, receiver}), static_cast<ssize_t>(text.size()));
    }

private:
    const FileDescriptor socket = OpenUdp();
};

struct FlightGearRig {
    explicit FlightGearRig(AircraftOverrides aircraft = {}, std::uint16_t port = 0)
        : Line(Loop, Questions(), std::move(aircraft), port) {
        Line.Changed = [this] { ++Changes; };
    }

    ProcessQuestions Questions() {
        return {[this](std::uint16_t port) {
                    ++Asked;
                    return Owners[port];
                },
                [this](pid_t process, std::function<void()> task) { return Endings[process].Attach(std::move(task)); }};
    }
    // The line comes, and is taken.
    void Say(LoopbackSocket& from, const std::string& line) {
        from.Send(Line.Port(), line);
        Loop.BringLines();
    }
    void End(pid_t process) { Endings[process].Tell(); }

    SocketLoop Loop;
    std::map<std::uint16_t, pid_t> Owners;  // of ports; 0 for unknown
    std::map<pid_t, Observers<>> Endings;
    int Asked = 0;
    FlightGearLine Line;
    int Changes = 0;
};

}  // namespace orvelle::simulators
