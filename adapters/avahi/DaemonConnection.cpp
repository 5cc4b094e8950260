#include "adapters/avahi/DaemonConnection.h"

#include <utility>

namespace orvelle::avahi {

namespace {

// Where there is no message bus to wait on for the daemon.
constexpr std::chrono::milliseconds Retry{5000};

}  // namespace

int DaemonConnection::Tend() {
    if (state == State::Broken || (state == State::Away && Clock::now() >= next)) Connect();
    if (state == State::Broken) return 0;
    if (state == State::Kept) return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(next - Clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
}

void DaemonConnection::Connect() {
    Free();
    const auto follow = [](AvahiClient* now, AvahiClientState newState, void* object) {
        static_cast<DaemonConnection*>(object)->Follow(now, newState);
    };
    state = State::Kept;
    int error = 0;
    // Without the daemon this gives a client that waits for it.
    client = avahi_client_new(poll, AVAHI_CLIENT_NO_FAIL, follow, this, &error);
    if (client != nullptr) return;
    state = State::Away;
    next = Clock::now() + Retry;
    work.Miss();
}

// Called by the library, for the first time before it has given the client, and not to free it.
void DaemonConnection::Follow(AvahiClient* now, AvahiClientState newState) {
    switch (newState) {
        case AVAHI_CLIENT_S_RUNNING:
            return work.Begin(now);
        case AVAHI_CLIENT_CONNECTING:
            return work.Miss();
        case AVAHI_CLIENT_FAILURE:
            state = State::Broken;
            return;
        case AVAHI_CLIENT_S_REGISTERING:
        case AVAHI_CLIENT_S_COLLISION:
            return;  // the daemon looks for a name of its own, and is ready then
    }
}

void DaemonConnection::Free() {
    if (client == nullptr) return;
    work.Forget();
    avahi_client_free(std::exchange(client, nullptr));
}

}  // namespace orvelle::avahi
