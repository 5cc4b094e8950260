// The X server as the keyboard uses it: one connection for strokes and for the layout's names. It is made when it is
// first needed, and made again where it was cut; no event is waited for.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "adapters/x11/KeyLayout.h"
#include "adapters/x11/XTestConnection.h"

namespace orvelle::linux {

class KeyServer {
public:
    // `display` "" is the environment's.
    explicit KeyServer(std::string display) : display(std::move(display)) {}

    // One whose Problem() is told where the server can't be reached; that is tried once a second at most.
    XTestConnection& Reach();
    // The character of a key by the current layout, "" where there is none.
    std::string Character(int keyCode);
    // Of what was reached last; "" also before.
    std::string Problem() const { return connection ? connection->Problem() : ""; }

private:
    using Clock = std::chrono::steady_clock;

    void Connect();

    std::string display;
    Clock::time_point nextTry;
    std::optional<XTestConnection> connection;
    std::optional<KeyLayout> layout;
};

}  // namespace orvelle::linux
