#include "adapters/mqtt/Brokers.h"

#include "platform/ServerNames.h"

namespace orvelle::mqtt {

void Brokers::Join(const SetUpSetting& joined) {
    if (setUp == joined) return;
    setUp = joined;
    byHost.clear();
}

void Brokers::Leave() {
    setUp.reset();
    byHost.clear();
}

void Brokers::SayGoodbye() {
    for (const auto& [host, known] : byHost)
        if (const std::shared_ptr<PanelAtBroker> at = known.lock()) at->Close();
}

std::shared_ptr<PanelAtBroker> Brokers::At(const std::string& server) {
    if (!setUp) return nullptr;
    const std::string host = HostOf(server);
    std::weak_ptr<PanelAtBroker>& known = byHost[host];
    std::shared_ptr<PanelAtBroker> at = known.lock();
    if (!at) {
        known = at = std::make_shared<PanelAtBroker>(loop, tell);
        at->Open(*setUp, host);
    }
    return at;
}

std::string Brokers::HostOf(const std::string& server) const {
    if (server == AutomaticServer) return setUp->Host;
    if (server == OwnServer || server == LocalHost) return LoopbackAddress;
    return server;
}

}  // namespace orvelle::mqtt
