// Where "AUTOMATIC" leads: to the set-up that was joined, where the network shows it under its name, else where
// setup.json says. A place that was reached is kept, also over a loss, until it can't be had again. From one that can't
// be had it goes to the next: the places that are shown in turn, each time with the one of setup.json between, so that
// nobody who announces our name keeps us from it. That the broker is ours is proved by the key, not by the name. Asked
// by Brokers, which tells how it fared there.
#pragma once

#include <optional>

#include "adapters/mqtt/BrokerConnection.h"
#include "adapters/mqtt/FoundServers.h"
#include "adapters/mqtt/SetUpFile.h"

namespace orvelle::mqtt {

class AutomaticPlace {
public:
    AutomaticPlace(EventLoop& eventLoop, FoundServers& foundServers, const SetUpSetting& joined);
    AutomaticPlace(const AutomaticPlace&) = delete;
    AutomaticPlace& operator=(const AutomaticPlace&) = delete;

    // Begins when it is asked for the first time; nothing while what the network shows is waited for.
    const std::optional<HostAndPort>& Place();
    bool IsAt(const HostAndPort& which) const { return place == which; }

    // Of the connection at that place.
    void Reach();
    void Fail(BrokerTrouble why);

    Event<> Changed;  // from the loop: there is another place

private:
    void Choose();
    void Take(const HostAndPort& chosen);
    void GoLater(const HostAndPort& chosen, Long milliseconds);
    std::vector<HostAndPort> Shown() const;

    EventLoop& loop;
    FoundServers& found;
    const std::string name;  // of the set-up
    const HostAndPort own;   // of setup.json
    std::optional<HostAndPort> place;
    bool hasBegun = false;
    bool isReached = false;
    bool isLeaving = false;
    std::size_t turn = 0;
    Long pause;  // after the own place, milliseconds
    Ticket showing, patience, leaving;
};

}  // namespace orvelle::mqtt
