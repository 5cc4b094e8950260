// Set-ups on the network, found by DNS-SD: which there are, which come and go. What is announced wrongly, or for
// another version of the protocol, is left out. Needs the Avahi daemon; one that comes later, or goes and comes back,
// is followed, and what it told goes with it. Events come from the loop; a handler doesn't end this object.
#pragma once

#include <avahi-client/lookup.h>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>

#include "adapters/avahi/DaemonConnection.h"

namespace orvelle::avahi {

constexpr const char* ServiceType = "_orvelle._tcp";

struct FoundService {
    std::string SetUp;  // its name
    std::string Host;   // without the last dot
    int Port = 0;
    bool operator==(const FoundService&) const = default;
    bool operator<(const FoundService& other) const {
        return std::tie(SetUp, Host, Port) < std::tie(other.SetUp, other.Host, other.Port);
    }
};

class ServiceBrowser {
public:
    explicit ServiceBrowser(EventLoop& eventLoop);
    ServiceBrowser(const ServiceBrowser&) = delete;
    ServiceBrowser& operator=(const ServiceBrowser&) = delete;

    // As told so far.
    const std::set<FoundService>& Found() const { return told; }
    bool IsThere(const FoundService& service) const { return told.contains(service); }

    Event<const FoundService&> Came;
    Event<const FoundService&> Went;
    Event<const std::string&> Told;  // once: a sentence, where there is no daemon

private:
    // A set-up shows once for each network that it is seen on.
    using Sighting = std::tuple<AvahiIfIndex, AvahiProtocol, std::string, std::string>;
    struct Seen {
        AvahiServiceResolver* Resolver = nullptr;
        std::optional<FoundService> Service;
    };

    void Browse(AvahiClient* client);
    void See(AvahiClient* client, const Sighting& sighting);
    void Resolve(AvahiServiceResolver* resolver, std::optional<FoundService> service);
    void TellLater();
    void Tell();

    EventLoop& loop;
    AvahiServiceBrowser* browser = nullptr;
    std::map<Sighting, Seen> seen;
    std::set<FoundService> told;
    Ticket telling;
    DaemonConnection daemon;
};

}  // namespace orvelle::avahi
