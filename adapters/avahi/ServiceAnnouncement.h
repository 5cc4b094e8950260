// Tells the network of a set-up whose broker is on this computer, by DNS-SD, under its own name, or where another one
// bears that already, under the next (as "Home #2"). Needs the Avahi daemon; one that comes later, or goes and comes
// back, is told again, and one that hangs holds nobody up. Called by the simulator's program.
#pragma once

#include <string>

#include "adapters/avahi/DaemonThread.h"
#include "platform/Event.h"

namespace orvelle::avahi {

class ServiceAnnouncement {
public:
    // The port is the broker's, 1 to 65535. A name that is too long for the network is cut.
    ServiceAnnouncement(EventLoop& loop, const std::string& setUpName, int brokerPort);
    ServiceAnnouncement(const ServiceAnnouncement&) = delete;
    ServiceAnnouncement& operator=(const ServiceAnnouncement&) = delete;

    // Under which name the network knows it, "" while it doesn't.
    const std::string& Known() const { return known; }

    Event<const std::string&> Told;  // from the loop, once: a sentence, where there is no daemon

private:
    std::string known;
    bool isMissingTold = false;
    DaemonThread daemon;
};

}  // namespace orvelle::avahi
