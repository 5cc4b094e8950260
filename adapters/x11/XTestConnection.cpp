#include "adapters/x11/XTestConnection.h"

#include <unistd.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>

namespace orvelle {

namespace {

constexpr std::uint32_t MostNoted = 256 / 4;  // of the protocol's units of four bytes: each key once

template <typename Value>
using Answer = std::unique_ptr<Value, decltype(&std::free)>;

xcb_atom_t Atom(xcb_connection_t* connection, const std::string& name) {
    const auto question = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Answer<xcb_intern_atom_reply_t> answer(xcb_intern_atom_reply(connection, question, nullptr), &std::free);
    return answer ? answer->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace

XTestConnection::XTestConnection(const std::string& display)
    : connection(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr)) {
    if (IsLost()) {
        problem = "There is no X server to reach, so no key can be pressed on this computer.";
        return;
    }
    const xcb_query_extension_reply_t* const test = xcb_get_extension_data(connection.get(), &xcb_test_id);
    if (!test || !test->present)
        problem = "The X server lacks the XTEST extension, so no key can be pressed on this computer.";
    note = Atom(connection.get(), "_ORVELLE_HELD_KEYS_" + std::to_string(getuid()));
}

std::string XTestConnection::Problem() const {
    if (problem.empty() && IsLost())
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

void XTestConnection::NoteHeldKeys(const std::vector<int>& keyCodes) {
    const std::vector<int> before = noted.value_or(std::vector<int>());
    if (noted && std::ranges::includes(before, keyCodes)) return;
    std::vector<int> all;
    std::ranges::set_union(before, keyCodes, std::back_inserter(all));
    WriteNote(all);
}

void XTestConnection::ClearNote() {
    if (noted && noted->empty()) return;
    WriteNote({});
    xcb_flush(connection.get());
}

void XTestConnection::WriteNote(const std::vector<int>& keyCodes) {
    if (!Problem().empty()) return;
    noted = keyCodes;
    const std::vector<std::uint8_t> bytes(keyCodes.begin(), keyCodes.end());
    xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, Root(), note, XCB_ATOM_CARDINAL, 8,
                        static_cast<std::uint32_t>(bytes.size()), bytes.data());
}

std::vector<int> XTestConnection::NotedKeys() {
    if (!Problem().empty()) return {};
    const auto question = xcb_get_property(connection.get(), 0, Root(), note, XCB_ATOM_CARDINAL, 0, MostNoted);
    const Answer<xcb_get_property_reply_t> answer(xcb_get_property_reply(connection.get(), question, nullptr),
                                                  &std::free);
    if (!answer || answer->format != 8) return {};
    const auto* const bytes = static_cast<const std::uint8_t*>(xcb_get_property_value(answer.get()));
    return {bytes, bytes + xcb_get_property_value_length(answer.get())};
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
