// Cuts a computer off that was taken out of the set-up. The broker takes its key no longer, but leaves connections as
// they are; a client id that comes again ends the older connection, so its programs' ids are taken for an instant. What
// is still said below its identity afterwards comes over a connection of another name, which only a new start of the
// broker ends. Made when the broker has read the keys again; to be ended when it has told.
#pragma once

#include <array>
#include <memory>

#include "adapters/mqtt/BrokerConnection.h"
#include "adapters/mqtt/SetUpFile.h"

namespace orvelle::mqtt {

class Expulsion {
public:
    // `own` is how this computer comes to the broker.
    Expulsion(EventLoop& loop, const SetUpSetting& own, int removedIdentity);

    Event<> StillHeard;  // the broker has to be started again
    Event<> Done;        // from the loop; last

private:
    BrokerConnection panel, simulator, listening;
    int taken = 0;
    Ticket bound;
    bool isHeard = false;
};

}  // namespace orvelle::mqtt
