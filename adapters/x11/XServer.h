// The few requests that the shell makes of the X server past Qt, over Qt's own connection, which outlives their users.
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <string>

#include "adapters/x11/XReply.h"

namespace orvelle {

// Null where Qt shows its windows on something else.
xcb_connection_t* XConnection();
int XScreenNumber();
// XCB_ATOM_NONE if the server can't be asked.
xcb_atom_t XAtom(xcb_connection_t* connection, const std::string& name);
// Asks the window manager for the focus in the user's name.
void XActivate(xcb_connection_t* connection, xcb_window_t window);
// A window that never shows, to be sent messages to.
xcb_window_t XHiddenWindow(xcb_connection_t* connection);

}  // namespace orvelle
