// The set-ups' servers that the network shows now, as whoever looks for them tells: read by the panel's lines, which
// tell the panel of them, and by AutomaticPlace. Observers are told from the loop, once for all changes of a turn.
#pragma once

#include <compare>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "adapters/shared/Changes.h"
#include "adapters/shared/HostAndPort.h"

namespace orvelle::mqtt {

struct FoundServer {
    std::string SetUp;  // its name
    HostAndPort Place;
    auto operator<=>(const FoundServer&) const = default;
};

class FoundServers {
public:
    explicit FoundServers(EventLoop& eventLoop) : loop(eventLoop), changes(eventLoop) {}

    // Somebody looks from now on.
    void Begin();
    // Nothing is to be waited for, as there is nobody to ask.
    void Settle();
    // Nobody looks any more, and nothing is known.
    void End();
    // What is beyond bounds::FoundServers is left out.
    void Add(const FoundServer& server);
    void Remove(const FoundServer& server);

    // In the first two seconds of looking: what isn't there may still show.
    bool MayStillShow() const { return isNew; }
    std::set<std::string> Hosts() const;
    std::vector<HostAndPort> Of(const std::string& setUp) const;

    [[nodiscard]] Ticket Observe(std::function<void()> observer) { return changes.Observe(std::move(observer)); }
    // Observers are told once more.
    void TellAgain() { changes.Mark(); }

private:
    EventLoop& loop;
    Changes changes;
    std::set<FoundServer> found;
    bool isNew = false;
    Ticket settling;
};

}  // namespace orvelle::mqtt
