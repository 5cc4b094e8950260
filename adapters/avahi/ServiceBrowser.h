// Set-ups on the network, found by DNS-SD: which there are, which come and go. What is announced wrongly, or for
// another version of the protocol, is left out. Needs the Avahi daemon; one that comes later, or goes and comes back,
// is followed, and what it told goes with it; one that hangs holds nobody up. Events come from the loop; a handler
// doesn't end this object.
#pragma once

#include <set>
#include <string>
#include <tuple>

#include "adapters/avahi/DaemonThread.h"
#include "platform/Event.h"

namespace orvelle::avahi {

constexpr const char* ServiceType = "_orvelle._tcp";
// Where there is no daemon.
constexpr const char* MissingSentence =
    "Set-ups aren't found by themselves, as this computer has no Avahi daemon that runs; hosts can be named.";

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
    explicit ServiceBrowser(EventLoop& loop);
    ServiceBrowser(const ServiceBrowser&) = delete;
    ServiceBrowser& operator=(const ServiceBrowser&) = delete;

    // As told so far.
    const std::set<FoundService>& Found() const { return told; }
    bool IsThere(const FoundService& service) const { return told.contains(service); }

    Event<const FoundService&> Came;
    Event<const FoundService&> Went;
    Event<const std::string&> Told;  // once: a sentence, where there is no daemon

private:
    void Tell(const std::set<FoundService>& now);

    std::set<FoundService> told;
    bool isMissingTold = false;
    DaemonThread daemon;
};

}  // namespace orvelle::avahi
