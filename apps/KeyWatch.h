// Another client of the X server, which sees what keys are down there. Keys are told by their evdev codes.
#pragma once

#include <xcb/xcb.h>

#include <vector>

namespace orvelle {

class KeyWatch {
public:
    KeyWatch() : connection(xcb_connect(nullptr, nullptr)) {}
    KeyWatch(const KeyWatch&) = delete;
    KeyWatch& operator=(const KeyWatch&) = delete;
    ~KeyWatch() { xcb_disconnect(connection); }

    // Ascending; empty where the server does not answer.
    std::vector<int> KeysDown() const;

private:
    xcb_connection_t* const connection;
};

}  // namespace orvelle
