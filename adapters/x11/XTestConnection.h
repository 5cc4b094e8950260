// A connection to the X server that sends key strokes by its test extension. The keyboard and the key guard have one
// each. Nothing of it ends the program: where there is no server, or it goes away, Problem() is one sentence and every
// stroke does nothing.
#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <memory>
#include <string>

namespace orvelle {

enum class KeyStroke { Down, Up };

class XTestConnection {
public:
    // `display` names the server as the environment's DISPLAY does; "" takes that.
    explicit XTestConnection(const std::string& display);

    // "" while strokes can be sent.
    std::string Problem() const;
    // The stroke is on its way to the server when this returns. `keyCode` is the server's own.
    void Send(int keyCode, KeyStroke stroke);
    // Returns when the server has taken all strokes.
    void Finish();
    // Hands on the events that the server sent in the meantime; never waits.
    void TakeEvents(const std::function<void(const xcb_generic_event_t&)>& take);
    // For questions about the keyboard. Never null, but broken where Problem() tells so.
    xcb_connection_t* Connection() const { return connection.get(); }

private:
    struct Disconnect {
        void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
    };

    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    std::string problem;
};

}  // namespace orvelle
