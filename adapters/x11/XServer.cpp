#include "adapters/x11/XServer.h"

#include <QGuiApplication>

namespace orvelle {

xcb_connection_t* XConnection() {
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

int XScreenNumber() {
    // "host:display.screen"
    const char* name = std::getenv("DISPLAY");
    int screen = 0;
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(name, &host, &display, &screen) != 0) std::free(host);
    return screen;
}

xcb_atom_t XAtom(xcb_connection_t* connection, const std::string& name) {
    const auto request = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, request, nullptr));
    return reply == nullptr ? static_cast<xcb_atom_t>(XCB_ATOM_NONE) : reply->atom;
}

void XActivate(xcb_connection_t* connection, xcb_window_t window) {
    constexpr std::uint32_t FromPager = 2;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = XAtom(connection, "_NET_ACTIVE_WINDOW");
    event.data.data32[0] = FromPager;
    xcb_send_event(connection, 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(connection);
}

xcb_window_t XHiddenWindow(xcb_connection_t* connection) {
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    constexpr std::uint32_t NoWindowManager = 1;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &NoWindowManager);
    return window;
}

}  // namespace orvelle
