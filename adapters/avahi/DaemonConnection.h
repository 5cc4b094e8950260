// The connection to this computer's Avahi daemon, kept whatever happens to the daemon: one that isn't there yet is
// waited for, and one that went is waited for again. On the library's thread: its calls ask the daemon and wait for the
// answer, from one that hangs for 25 seconds.
#pragma once

#include <avahi-client/client.h>

#include <chrono>

#include "adapters/avahi/DaemonWork.h"

namespace orvelle::avahi {

class DaemonConnection {
public:
    DaemonConnection(const AvahiPoll* libraryPoll, DaemonWork& daemonWork) : poll(libraryPoll), work(daemonWork) {}
    DaemonConnection(const DaemonConnection&) = delete;
    DaemonConnection& operator=(const DaemonConnection&) = delete;
    ~DaemonConnection() { Free(); }

    // To be called in each turn of the thread: connects where it is time to. Gives the milliseconds until it shall be
    // called again, -1 for when the library has something.
    int Tend();

private:
    using Clock = std::chrono::steady_clock;
    enum class State { Away, Kept, Broken };

    void Connect();
    void Follow(AvahiClient* now, AvahiClientState newState);
    void Free();

    const AvahiPoll* const poll;
    DaemonWork& work;
    AvahiClient* client = nullptr;
    State state = State::Away;
    Clock::time_point next;  // attempt, while away
};

}  // namespace orvelle::avahi
