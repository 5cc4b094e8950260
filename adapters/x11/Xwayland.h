// Whether an X server is the one that a Wayland session brings along for X programs. What is struck there reaches the
// windows of X programs alone.
#pragma once

#include <xcb/xcb.h>

namespace orvelle {

// Asked of the server; false over a broken connection.
bool IsXwayland(xcb_connection_t* connection);

}  // namespace orvelle
