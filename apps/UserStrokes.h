// Strokes as a user makes them: sent through the X server's own keyboard, not through that of its test extension, whose
// strokes count as a program's. For whoever plays the user of a virtual display; a stroke that the server refuses, or
// that it could not be told, changes nothing.
#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <string>

namespace orvelle {

class UserStrokes {
public:
    // "" is the environment's display.
    explicit UserStrokes(const std::string& display);

    // By the server's key codes. Taken by the server when this returns.
    void Press(int keyCode) { Send(keyCode, 1); }
    void Release(int keyCode) { Send(keyCode, 2); }

private:
    struct Disconnect {
        void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
    };

    void Send(int keyCode, int stroke);

    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    int firstEvent = 0;
    int keyboard = 0;
};

}  // namespace orvelle
