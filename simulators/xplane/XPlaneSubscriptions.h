// Asks one X-Plane for the values of all datarefs, again every five seconds, as it forgets what was asked when it is
// started anew; and hears what it answers. Packets of other computers are left out. At the end nothing more is asked
// for.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "adapters/shared/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "simulators/xplane/Ipv4Interfaces.h"
#include "simulators/xplane/XPlaneDatarefs.h"
#include "simulators/xplane/XPlanePackets.h"
#include "simulators/xplane/XPlaneTarget.h"

namespace orvelle::simulators {

class XPlaneSubscriptions {
public:
    static constexpr Long AgainMilliseconds = 5000;
    static constexpr std::size_t MostAtOnce = 140;  // requests; the rest follows 100 ms later

    // `interfaces` outlives this object.
    XPlaneSubscriptions(EventLoop& eventLoop, const Ipv4Interfaces& interfaces, std::vector<Dataref> datarefs);
    ~XPlaneSubscriptions();

    void Begin(const XPlaneTarget& asked);
    void Ask();  // now, not only when it is time
    void End();

    Event<const std::vector<NumberedValue>&> Heard;

private:
    enum class Request { Begin, End };

    void AskFrom(std::size_t first);
    void Send(std::size_t number, Request request) const;
    void Serve();

    EventLoop& loop;
    const Ipv4Interfaces& interfaces;
    const std::vector<Dataref> datarefs;
    XPlaneTarget target;
    FileDescriptor socket;
    Ticket readable, again;
};

}  // namespace orvelle::simulators
