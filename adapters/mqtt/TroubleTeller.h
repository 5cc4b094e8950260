// When the user is told why the broker can't be had: what has lasted for a while, each reason once until the broker was
// had for ten seconds, when its end is told; so a network that comes late, or goes for a moment, is not told. That
// another program comes under this computer's name is told when it comes again, whatever lies between. Used by Brokers
// for each server that a line wants, and by the simulator's program, whose user is told at once.
#pragma once

#include <set>

#include "adapters/mqtt/BrokerConnection.h"
#include "adapters/shared/HostAndPort.h"

namespace orvelle::mqtt {

constexpr Long UsualTroublePatience = 10000;  // milliseconds

class TroubleTeller {
public:
    // `patience` is how long a trouble lasts untold.
    explicit TroubleTeller(EventLoop& eventLoop, Long patience = UsualTroublePatience)
        : loop(eventLoop), patience(patience) {}

    void Fail(BrokerTrouble why, const HostAndPort& place);
    void Reach(const HostAndPort& place);
    // Nobody wants that broker now. What was told stays told.
    void Rest();

    Event<BrokerTrouble, const HostAndPort&> Told;  // from the loop
    Event<const HostAndPort&> Over;                 // what was told

private:
    void TellOnce();

    EventLoop& loop;
    const Long patience;
    BrokerTrouble trouble = BrokerTrouble::None;
    HostAndPort where;
    bool isWaiting = false;
    bool lasts = false;
    bool wasTakenOver = false;
    std::set<BrokerTrouble> told;
    Ticket waiting, standing;
};

}  // namespace orvelle::mqtt
