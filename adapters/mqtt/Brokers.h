// Where the servers' names of the two links lead for a computer that belongs to a set-up: "<LOCAL>" and "localhost" to
// the broker on this computer, another host to the one there, "AUTOMATIC" to the set-up that was joined. One host has
// one connection. Called by the lines.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "adapters/mqtt/PanelAtBroker.h"
#include "platform/EventLoop.h"

namespace orvelle::mqtt {

class Brokers {
public:
    // `describe` tells of this computer, but for its address there.
    Brokers(EventLoop& eventLoop, std::function<PresenceSetting()> describe)
        : loop(eventLoop), tell(std::move(describe)) {}

    // Which set-up the computer belongs to from now on; lines that are open are to be opened anew.
    void Join(const SetUpSetting& joined);
    void Leave();
    bool HasJoined() const { return setUp.has_value(); }

    // To be called at the program's end, where the loop runs no more: ends what is published and hangs up.
    void SayGoodbye();

    // The panel at the broker that a server's name leads to; kept as long as somebody keeps it. Null where the computer
    // belongs to no set-up.
    std::shared_ptr<PanelAtBroker> At(const std::string& server);

private:
    std::string HostOf(const std::string& server) const;

    EventLoop& loop;
    const std::function<PresenceSetting()> tell;
    std::optional<SetUpSetting> setUp;
    std::map<std::string, std::weak_ptr<PanelAtBroker>> byHost;
};

}  // namespace orvelle::mqtt
