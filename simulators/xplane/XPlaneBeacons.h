// The beacons that X-Planes send to everybody once a second, on this computer and on the network: heard by multicast on
// each interface, also on those that come later. The port is shared with other programs that listen.
#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "simulators/xplane/Ipv4Interfaces.h"
#include "simulators/xplane/XPlanePackets.h"

namespace orvelle::simulators {

class XPlaneBeacons {
public:
    // `interfaces` outlives this object, and its Changed is its. A port that can't be had is tried again each second.
    XPlaneBeacons(EventLoop& eventLoop, Ipv4Interfaces& interfaces, std::uint16_t port);

    // Why none can be heard, one sentence for the user; "" where all is well.
    const std::string& Problem() const { return problem; }

    // What has come by now and wasn't told yet is passed over.
    void LeaveOut();

    Event<const Beacon&, std::uint32_t> Heard;  // and the sender's address
    Event<> Changed;                            // the problem

private:
    void Listen();
    void Join();
    void Serve();
    void Tell(const std::string& what);

    EventLoop& loop;
    Ipv4Interfaces& interfaces;
    const std::uint16_t port;
    FileDescriptor socket;
    std::set<int> joined;  // interfaces, by their indexes
    std::string problem;
    Ticket readable, again;
};

}  // namespace orvelle::simulators
