// One medium of the simulator link: a way from the panel to the simulator's computer. The near end of the link opens
// one line at a time, says to it what the panel wants said, and hears its events; nobody else does. All events come
// from the loop, never from inside a call, and none between Close and the next Open.
#pragma once

#include <string>

#include "platform/Event.h"
#include "platform/ServerNames.h"
#include "platform/SimulatorInput.h"

namespace orvelle {

// The computer at the other end, as it tells of itself.
struct SimulatorComputer {
    std::string IPAddress = LoopbackAddress;
    std::string ComputerName = "FLIGHTDECK";
    std::string DesktopName = "Simulator";
};

class SimulatorLine {
public:
    virtual ~SimulatorLine() = default;

    // Goes to a server: a host name, an address or AutomaticServer. It keeps trying until Close. A line that is open
    // goes over to the new server, which it may be at already.
    virtual void Open(const std::string& server) = 0;
    virtual void Close() = 0;
    // What the panel says; lost where the line is not up.
    virtual void SayReady() = 0;
    virtual void SaySound(const std::string& path) = 0;
    // Asked while the line is up.
    virtual SimulatorComputer FarComputer() = 0;

    Event<> Up;
    Event<> Lost;                           // only after Up
    Event<const SimulatorInput&> Said;      // only while up: all that is held there now
    Event<const std::string&> ServerFound;  // a server on the network, by name or address; whether up or not
};

}  // namespace orvelle
