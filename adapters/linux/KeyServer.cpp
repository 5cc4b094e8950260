#include "adapters/linux/KeyServer.h"

#include "adapters/linux/WaylandDisplay.h"
#include "adapters/x11/Xwayland.h"

namespace orvelle::linux {

namespace {

constexpr std::chrono::seconds BetweenTries{1};

}  // namespace

StrokeTarget& KeyServer::Reach() {
    const bool isFirst = !connection;
    XTestConnection& server = ReachServer();
    if (isFirst) Choose();
    if (kernel) return *kernel;
    return server;
}

XTestConnection& KeyServer::ReachServer() {
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

void KeyServer::Choose() {
    hadServer = !connection->IsLost();
    if (!HasWaylandDisplay() || !(hadServer ? IsXwayland(connection->Connection()) : display.empty())) return;
    kernel.emplace(kernelFile);
    if (kernel->Problem().empty()) return;
    kernel.reset();
    limit =
        (hadServer ? "In this Wayland session the keys that the panel presses reach only the windows of X programs, "
                     "until this user may write to "
                   : "In this Wayland session no key can be pressed on this computer, until this user may write to ") +
        kernelFile + ".";
}

std::string KeyServer::Problem() const {
    if (kernel) return kernel->Problem();
    // A session without any server has its limit, which tells more.
    const bool isLimitedToNothing = !limit.empty() && !hadServer;
    return connection && !isLimitedToNothing ? connection->Problem() : "";
}

std::string KeyServer::Character(int keyCode) {
    XTestConnection& server = ReachServer();
    if (!layout) layout.emplace(server.Connection());
    return layout->Character(keyCode);
}

}  // namespace orvelle::linux
