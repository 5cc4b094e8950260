// Whose a window of an X server is: the process that the server itself knows to have made it, the one that the window
// names, and where neither can be told, as over a network, its class and title. Over a connection of the caller's; a
// window that is gone has no owner.
#pragma once

#include <sys/types.h>
#include <xcb/xcb.h>

#include <string>
#include <vector>

namespace orvelle {

class WindowOwner {
public:
    explicit WindowOwner(xcb_connection_t* connection);

    // Those that can be told, none twice.
    std::vector<pid_t> ProcessesOf(xcb_window_t window) const;
    // Instance, class and title, as far as they are there.
    std::vector<std::string> NamesOf(xcb_window_t window) const;

private:
    pid_t KnownToServer(xcb_window_t window) const;
    pid_t NamedByWindow(xcb_window_t window) const;
    std::string Text(xcb_window_t window, xcb_atom_t property) const;

    xcb_connection_t* connection;
    xcb_atom_t processId = XCB_NONE;
    bool knowsClients = false;  // the server has the extension that tells processes
};

}  // namespace orvelle
