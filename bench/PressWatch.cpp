#include "bench/PressWatch.h"

#include <poll.h>
#include <xcb/xinput.h>

#include <bit>
#include <stdexcept>

#include "adapters/x11/XReply.h"

namespace orvelle {

namespace {

constexpr int LookForEnd = 100;  // milliseconds

xcb_window_t RootOf(xcb_connection_t* connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

// Returns when the server has done all that was asked.
void Finish(xcb_connection_t* connection) {
    OwnReply(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

}  // namespace

PressWatch::PressWatch(const std::string& display) : connection(xcb_connect(display.c_str(), nullptr)) {
    const auto* const input = xcb_get_extension_data(connection.get(), &xcb_input_id);
    if (input == nullptr || !input->present) throw std::runtime_error("no keys are told on " + display);
    inputExtension = input->major_opcode;
    const auto question = xcb_input_xi_query_version(connection.get(), 2, 2);
    OwnReply(xcb_input_xi_query_version_reply(connection.get(), question, nullptr));
    const struct {
        xcb_input_event_mask_t Head;
        std::uint32_t Events;
    } mask{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
           XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE};
    xcb_input_xi_select_events(connection.get(), RootOf(connection.get()), 1, &mask.Head);
    TakeKeys();
    watching = std::jthread([this](const std::stop_token& end) { Watch(end); });
}

void PressWatch::TakeKeys() {
    const xcb_window_t window = xcb_generate_id(connection.get());
    constexpr std::uint32_t NoWindowManager = 1;
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, RootOf(connection.get()), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &NoWindowManager);
    xcb_map_window(connection.get(), window);
    Finish(connection.get());
    xcb_set_input_focus(connection.get(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    Finish(connection.get());
}

PressWatch::Moments PressWatch::Presses() const {
    const std::lock_guard alone(taking);
    return presses;
}

PressWatch::Moments PressWatch::Releases() const {
    const std::lock_guard alone(taking);
    return releases;
}

void PressWatch::Begin() {
    const std::lock_guard alone(taking);
    presses.clear();
    releases.clear();
}

int PressWatch::KeysDown() {
    const auto keys = OwnReply(xcb_query_keymap_reply(connection.get(), xcb_query_keymap(connection.get()), nullptr));
    if (!keys) throw std::runtime_error("the display is lost");
    int down = 0;
    for (const std::uint8_t eight : keys->keys) down += std::popcount(eight);
    return down;
}

void PressWatch::Watch(const std::stop_token& end) {
    pollfd server{xcb_get_file_descriptor(connection.get()), POLLIN, 0};
    while (!end.stop_requested() && !xcb_connection_has_error(connection.get())) {
        poll(&server, 1, LookForEnd);
        while (const auto event = OwnReply(xcb_poll_for_event(connection.get()))) Take(*event);
    }
}

void PressWatch::Take(const xcb_generic_event_t& event) {
    const auto now = std::chrono::steady_clock::now();
    const auto& key = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    if ((event.response_type & 0x7F) != XCB_GE_GENERIC || key.extension != inputExtension) return;
    const std::lock_guard alone(taking);
    if (key.event_type == XCB_INPUT_RAW_KEY_PRESS) presses.push_back(now);
    if (key.event_type == XCB_INPUT_RAW_KEY_RELEASE) releases.push_back(now);
}

}  // namespace orvelle
