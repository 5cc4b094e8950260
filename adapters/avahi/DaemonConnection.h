// The connection to this computer's Avahi daemon, kept whatever happens to the daemon: one that isn't there yet is
// waited for, and one that went is waited for again. Used by the browser and the announcement, which make what they
// need at each Ready and forget it at each Lost. These two come from inside the library, so that nothing but notes and
// calls of the library are made there; Told comes from the loop.
#pragma once

#include <avahi-client/client.h>

#include <string>

#include "adapters/avahi/AvahiLoop.h"
#include "platform/Event.h"

namespace orvelle::avahi {

class DaemonConnection {
public:
    explicit DaemonConnection(EventLoop& eventLoop) : loop(eventLoop), avahiLoop(eventLoop) {}
    DaemonConnection(const DaemonConnection&) = delete;
    DaemonConnection& operator=(const DaemonConnection&) = delete;
    ~DaemonConnection() { Free(); }

    // Once, after the events are set.
    void Open();

    Event<AvahiClient*> Ready;       // the daemon serves; also again, as when the computer's own name has changed
    Event<> Lost;                    // what was made with the client is to be forgotten: it goes with it
    Event<const std::string&> Told;  // once: a sentence, where there is no daemon

private:
    void Connect();
    void Follow(AvahiClient* now, AvahiClientState state);
    void TellMissing();
    void Free();

    EventLoop& loop;
    const AvahiLoop avahiLoop;
    AvahiClient* client = nullptr;
    bool isTold = false;
    Ticket again, telling;
};

}  // namespace orvelle::avahi
