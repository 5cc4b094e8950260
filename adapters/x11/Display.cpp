#include "adapters/x11/Display.h"

#include <xcb/xcb.h>

#include <cstdlib>

namespace orvelle {

std::string MissingDisplay() {
    const char* name = std::getenv("DISPLAY");
    if (name == nullptr || *name == '\0') return "there is no X display to show the panel on (DISPLAY is not set)";
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool failed = xcb_connection_has_error(connection) != 0;
    xcb_disconnect(connection);
    return failed ? "the X display \"" + std::string(name) + "\" can't be opened" : "";
}

}  // namespace orvelle
