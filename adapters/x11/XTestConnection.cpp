#include "adapters/x11/XTestConnection.h"

#include <xcb/xtest.h>

#include <cstdint>
#include <cstdlib>

namespace orvelle {

XTestConnection::XTestConnection(const std::string& display)
    : connection(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr)) {
    if (xcb_connection_has_error(connection.get())) {
        problem = "There is no X server to reach, so no key can be pressed on this computer.";
        return;
    }
    const xcb_query_extension_reply_t* const test = xcb_get_extension_data(connection.get(), &xcb_test_id);
    if (!test || !test->present)
        problem = "The X server lacks the XTEST extension, so no key can be pressed on this computer.";
}

std::string XTestConnection::Problem() const {
    if (problem.empty() && xcb_connection_has_error(connection.get()))
        return "The connection to the X server is lost, so no key can be pressed on this computer.";
    return problem;
}

void XTestConnection::Send(int keyCode, KeyStroke stroke) {
    if (!Problem().empty()) return;
    const xcb_setup_t* const setup = xcb_get_setup(connection.get());
    if (keyCode < setup->min_keycode || keyCode > setup->max_keycode) return;

    const std::uint8_t type = stroke == KeyStroke::Down ? XCB_KEY_PRESS : XCB_KEY_RELEASE;
    xcb_test_fake_input(connection.get(), type, static_cast<std::uint8_t>(keyCode), XCB_CURRENT_TIME, XCB_NONE, 0, 0,
                        0);
    xcb_flush(connection.get());
}

void XTestConnection::Finish() {
    if (!Problem().empty()) return;
    std::free(xcb_get_input_focus_reply(connection.get(), xcb_get_input_focus(connection.get()), nullptr));
}

void XTestConnection::TakeEvents(const std::function<void(const xcb_generic_event_t&)>& take) {
    while (xcb_generic_event_t* const event = xcb_poll_for_event(connection.get())) {
        take(*event);
        std::free(event);
    }
}

}  // namespace orvelle
