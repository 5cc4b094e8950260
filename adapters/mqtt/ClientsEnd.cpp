#include "adapters/mqtt/ClientsEnd.h"

#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

ClientsEnd::ClientsEnd(EventLoop& eventLoop, const SetUpSetting& own, const std::vector<std::string>& clientIds)
    : left(clientIds.size()) {
    const std::string identity = WriteIdentity(own.Identity);
    for (const std::string& clientId : clientIds) {
        BrokerConnection& visit = *visits.emplace_back(std::make_unique<BrokerConnection>(eventLoop));
        visit.Up = [this, &visit] {
            visit.Close();
            --left;
        };
        // It counts as up when it is subscribed to something.
        visit.Open({.Access = {own.Host, own.Port, identity, WriteKey(own.Key)},
                    .ClientId = clientId,
                    .WillTopic = "",
                    .Subscriptions = {{"orvelle/1/" + identity + "/visit", 0}}});
    }
}

}  // namespace orvelle::mqtt
