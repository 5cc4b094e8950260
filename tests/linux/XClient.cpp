#include "tests/linux/XClient.h"

#include <xkbcommon/xkbcommon-x11.h>

#include <cstdlib>
#include <string_view>

#include "adapters/x11/XkbRequests.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {

XClient::XClient(const std::string& display)
    : connection(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr)) {
    xcb_connection_t* const server = connection.get();
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(server)).data;
    // A key that is held would send more presses on a slow machine.
    const std::uint32_t repeat = XCB_AUTO_REPEAT_MODE_OFF;
    xcb_change_keyboard_control(server, XCB_KB_AUTO_REPEAT_MODE, &repeat);

    const xcb_window_t window = xcb_generate_id(server);
    const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE;
    xcb_create_window(server, XCB_COPY_FROM_PARENT, window, screen.root, 0, 0, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual, XCB_CW_EVENT_MASK, &events);
    xcb_map_window(server, window);
    xcb_set_input_focus(server, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    std::free(xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
}

std::vector<SeenStroke> XClient::NextStrokes(std::size_t count) {
    WaitUntil([&] {
        while (xcb_generic_event_t* const event = xcb_poll_for_event(connection.get())) {
            const int type = event->response_type & 0x7F;
            if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE)
                seen.push_back({reinterpret_cast<xcb_key_press_event_t*>(event)->detail, type == XCB_KEY_PRESS});
            std::free(event);
        }
        return seen.size() >= count;
    });
    const auto end = seen.begin() + static_cast<std::ptrdiff_t>(std::min(count, seen.size()));
    std::vector<SeenStroke> next(seen.begin(), end);
    seen.erase(seen.begin(), end);
    return next;
}

std::vector<int> XClient::KeysDown() {
    std::vector<int> keys;
    auto* const reply = xcb_query_keymap_reply(connection.get(), xcb_query_keymap(connection.get()), nullptr);
    for (int keyCode = 0; reply && keyCode < 256; ++keyCode)
        if (reply->keys[keyCode / 8] & (1 << (keyCode % 8))) keys.push_back(keyCode);
    std::free(reply);
    return keys;
}

void XClient::ChooseLayout(int layout) {
    xkb_x11_setup_xkb_extension(connection.get(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr);
    LockLayout(connection.get(), layout);
    std::free(xcb_get_input_focus_reply(connection.get(), xcb_get_input_focus(connection.get()), nullptr));
}

bool XClient::HasWindowManager() {
    xcb_connection_t* const server = connection.get();
    const std::string_view name = "_NET_SUPPORTING_WM_CHECK";
    const auto question = xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.data());
    auto* const atom = xcb_intern_atom_reply(server, question, nullptr);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    auto* const property =
        xcb_get_property_reply(server, xcb_get_property(server, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr);
    const bool has = property && property->value_len == 1;
    std::free(property);
    std::free(atom);
    return has;
}

}  // namespace orvelle::linux
