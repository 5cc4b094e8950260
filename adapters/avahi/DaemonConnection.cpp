#include "adapters/avahi/DaemonConnection.h"

#include <utility>

namespace orvelle::avahi {

namespace {

// Where there is no message bus to wait on for the daemon.
constexpr Long RetryMilliseconds = 5000;

}  // namespace

void DaemonConnection::Open() {
    again = loop.After(0, [this] { Connect(); });
}

void DaemonConnection::Connect() {
    Free();
    const auto follow = [](AvahiClient* now, AvahiClientState state, void* object) {
        static_cast<DaemonConnection*>(object)->Follow(now, state);
    };
    int error = 0;
    // Without the daemon this gives a client that waits for it.
    client = avahi_client_new(avahiLoop.Poll(), AVAHI_CLIENT_NO_FAIL, follow, this, &error);
    if (client != nullptr) return;
    TellMissing();
    again = loop.After(RetryMilliseconds, [this] { Connect(); });
}

// Called by the library, for the first time before it has given the client.
void DaemonConnection::Follow(AvahiClient* now, AvahiClientState state) {
    switch (state) {
        case AVAHI_CLIENT_S_RUNNING:
            return Ready(now);
        case AVAHI_CLIENT_CONNECTING:
            return TellMissing();
        case AVAHI_CLIENT_FAILURE:
            again = loop.After(0, [this] { Connect(); });
            return;
        case AVAHI_CLIENT_S_REGISTERING:
        case AVAHI_CLIENT_S_COLLISION:
            return;  // the daemon looks for a name of its own, and is ready then
    }
}

void DaemonConnection::TellMissing() {
    if (std::exchange(isTold, true)) return;
    telling = loop.After(0, [this] {
        Told("Set-ups aren't found by themselves, as this computer has no Avahi daemon that runs; hosts can be named.");
    });
}

void DaemonConnection::Free() {
    if (client == nullptr) return;
    Lost();
    avahi_client_free(std::exchange(client, nullptr));
}

}  // namespace orvelle::avahi
