// X-Plane as its reader meets it: a played one whose packets go over real sockets of this computer, from processes that
// the test names, on a clock that the test drives.
#pragma once

#include <gtest/gtest.h>

#include <utility>

#include "simulators/xplane/XPlaneRref.h"
#include "tests/simulators/PlayedProcesses.h"
#include "tests/simulators/SocketClock.h"
#include "tests/simulators/XPlaneServer.h"

namespace orvelle::simulators {

struct XPlaneRig : PlayedProcesses {
    explicit XPlaneRig(AircraftOverrides aircraft = {})
        : Source(Loop, Questions([this](std::uint16_t port) { return port == Server.Port() ? Process : 0; }),
                 {Server.BeaconPort(), std::move(aircraft)}) {
        Source.Changed = [this] {
            ++Changes;
            if (Source.State() && Source.Stands() == Presence::Absent) ADD_FAILURE() << "a state of none";
        };
    }

    // Both go on for so long.
    void Pass(Long milliseconds) {
        for (Long end = Now + milliseconds; Now < end; Now += Step) {
            Server.Pass(Step);
            Loop.Serve(Server.Runs() ? SocketClock::Way::MayHold : SocketClock::Way::IsEmpty);
            Loop.Run(Step);
        }
    }
    // How long it took until it is so, in milliseconds; -1 if it never is.
    Long PassUntil(const std::function<bool()>& isSo, Long bound = 60'000) {
        for (const Long begin = Now; Now - begin <= bound; Pass(Step))
            if (isSo()) return Now - begin;
        return -1;
    }
    bool Tells(int kilohertz) const {
        return Source.Stands() == Presence::Live && Source.State()->Radios[0].Kilohertz == kilohertz;
    }
    // As its process ends, in whatever way.
    void Kill() {
        Server.Stop();
        const pid_t killed = std::exchange(Process, 0);
        if (killed != 0) End(killed);
    }

    static constexpr Long Step = 50;

    SocketClock Loop;
    XPlaneServer Server;
    Long Now = 0;
    pid_t Process = 0;  // that has the server's port; 0 for unknown
    XPlaneRref Source;
    int Changes = 0;
};

constexpr const char* Com1 = "sim/cockpit2/radios/actuators/com1_frequency_hz_833";

}  // namespace orvelle::simulators
