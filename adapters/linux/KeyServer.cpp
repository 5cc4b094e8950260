#include "adapters/linux/KeyServer.h"

namespace orvelle::linux {

namespace {

constexpr std::chrono::seconds BetweenTries{1};

}  // namespace

XTestConnection& KeyServer::Reach() {
    if (!connection) Connect();
    // This is also how a connection that was cut shows it.
    connection->TakeEvents([this](const xcb_generic_event_t& event) {
        if (layout) layout->Notice(event);
    });
    if (connection->IsLost() && Clock::now() >= nextTry) Connect();
    return *connection;
}

void KeyServer::Connect() {
    layout.reset();
    connection.emplace(display);
    if (connection->IsLost()) nextTry = Clock::now() + BetweenTries;
}

std::string KeyServer::Character(int keyCode) {
    XTestConnection& server = Reach();
    if (!layout) layout.emplace(server.Connection());
    return layout->Character(keyCode);
}

}  // namespace orvelle::linux
