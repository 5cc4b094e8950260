// Another client of the X server, which sees what keys are down there. Keys are told by their evdev codes.
#pragma once

#include <xcb/xcb.h>

#include <string>
#include <vector>

namespace orvelle {

class KeyWatch {
public:
    // "" is the environment's display.
    explicit KeyWatch(const std::string& display = "")
        : connection(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr)) {}
    KeyWatch(const KeyWatch&) = delete;
    KeyWatch& operator=(const KeyWatch&) = delete;
    ~KeyWatch() { xcb_disconnect(connection); }

    // Ascending; empty where the server does not answer.
    std::vector<int> KeysDown() const;

private:
    xcb_connection_t* const connection;
};

}  // namespace orvelle
