// FlightGear as its reader meets it: lines that come over real sockets of this computer, from processes that the test
// names, on a clock that the test drives.
#pragma once

#include <gtest/gtest.h>
#include <netinet/in.h>

#include <map>
#include <string>
#include <utility>

#include "simulators/UdpSocket.h"
#include "simulators/flightgear/FlightGearLine.h"
#include "tests/simulators/PlayedProcesses.h"
#include "tests/simulators/SocketClock.h"

namespace orvelle::simulators {

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

struct FlightGearRig : PlayedProcesses {
    explicit FlightGearRig(AircraftOverrides aircraft = {}, std::uint16_t port = 0)
        : Line(Loop, Questions([this](std::uint16_t of) { return Owners[of]; }), std::move(aircraft), port) {
        Line.Changed = [this] { ++Changes; };
    }

    // The line comes, and is taken.
    void Say(LoopbackSocket& from, const std::string& line) {
        from.Send(Line.Port(), line);
        BringLines();
    }
    void BringLines() { Loop.Serve(SocketClock::Way::IsEmpty); }

    SocketClock Loop;
    std::map<std::uint16_t, pid_t> Owners;  // of ports; 0 for unknown
    FlightGearLine Line;
    int Changes = 0;
};

}  // namespace orvelle::simulators
