// Where the servers' names of the two links lead for a computer that belongs to a set-up: "<LOCAL>" and "localhost" to
// the broker on this computer, another host to the one there, "AUTOMATIC" as AutomaticPlace says. A broker has one
// connection: where two names lead to one, which shows when each connection ends the other, one name is taken for the
// other until that can't be had for a while. Called by the lines.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "adapters/mqtt/AutomaticPlace.h"
#include "adapters/mqtt/PanelAtBroker.h"
#include "adapters/mqtt/TroubleTeller.h"
#include "platform/EventLoop.h"

namespace orvelle::mqtt {

class Brokers {
public:
    // `describe` tells of this computer, but for its address there.
    Brokers(EventLoop& eventLoop, std::function<PresenceSetting()> describe);

    Brokers(const Brokers&) = delete;
    Brokers& operator=(const Brokers&) = delete;
    ~Brokers();

    // Which set-up the computer belongs to from now on; lines that are open are to be opened anew.
    void Join(const SetUpSetting& joined);
    void Leave();
    bool HasJoined() const { return setUp.has_value(); }

    // To be called at the program's end, where the loop runs no more: ends what is published and hangs up.
    void SayGoodbye();

    // The panel at the broker that a server's name leads to now; kept as long as somebody keeps it. One without a name
    // or a place goes nowhere. Null where the computer belongs to no set-up.
    std::shared_ptr<PanelAtBroker> At(const std::string& server);

    FoundServers Found;
    Observers<> Changed;             // names may lead elsewhere: lines that are open go over
    Event<const std::string&> Told;  // a sentence: why a broker that a line wants can't be had, or that it is had again

private:
    using Clock = std::chrono::steady_clock;

    struct Known {
        std::weak_ptr<PanelAtBroker> At;
        std::optional<HostAndPort> SameAs;  // of another name
        std::optional<Clock::time_point> ReachedAt, TakenOverAt;
        std::optional<Clock::time_point> LostAt;  // while it isn't reached
        std::unique_ptr<TroubleTeller> Troubles;
        Ticket Reached, Failed;
    };

    HostAndPort PlaceOf(const std::string& server);
    bool HoldsRecord(Long number) const;
    void Follow(const HostAndPort& place, PanelAtBroker& at);
    void Reach(const HostAndPort& place);
    void Fail(const HostAndPort& place, BrokerTrouble why);
    void Merge(const HostAndPort& one, const HostAndPort& into);
    void Part(const HostAndPort& place);
    bool IsAutomatic(const HostAndPort& place) { return automatic && automatic->IsAt(place); }
    TroubleTeller& TroublesAt(const HostAndPort& place);

    EventLoop& loop;
    const std::function<PresenceSetting()> tell;
    std::optional<SetUpSetting> setUp;
    std::optional<AutomaticPlace> automatic;
    std::unique_ptr<TroubleTeller> automaticTroubles;  // wherever that leads
    std::map<HostAndPort, Known> byPlace;
};

}  // namespace orvelle::mqtt
