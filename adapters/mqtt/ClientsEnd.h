// Ends the connections of a computer that was removed: a broker goes on serving whoever is connected, also when his key
// is gone, but a client that comes under a name that is there ends the older one. So this computer comes once under
// each of his names. Called by the simulator's program, when the broker has given up the key.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adapters/mqtt/BrokerConnection.h"
#include "adapters/mqtt/SetUpFile.h"

namespace orvelle::mqtt {

class ClientsEnd {
public:
    // `own` tells where the broker is, and this computer's key.
    ClientsEnd(EventLoop& eventLoop, const SetUpSetting& own, const std::vector<std::string>& clientIds);

    bool IsDone() const { return left == 0; }

private:
    std::vector<std::unique_ptr<BrokerConnection>> visits;
    std::size_t left;
};

}  // namespace orvelle::mqtt
