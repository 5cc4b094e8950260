// Strokes of one key as the user of a display makes them: sent through the X server's own keyboard. What the keyboard
// of its test extension sends is a program's, and orvelle-sim leaves that out; other programs see no difference. Throws
// std::runtime_error where there is no such display or keyboard.
#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <string>

#include "adapters/x11/XTestConnection.h"

namespace orvelle {

class UserKeyboard {
public:
    UserKeyboard(const std::string& display, int serversKeyCode);

    // On its way when this returns.
    void Strike(KeyStroke stroke);

private:
    struct Disconnect {
        void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
    };

    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    int keyCode;
    int firstEvent = 0;
    int device = 0;
};

}  // namespace orvelle
