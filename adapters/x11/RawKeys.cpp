#include "adapters/x11/RawKeys.h"

#include <xcb/xinput.h>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "adapters/x11/LayoutKeyNames.h"
#include "adapters/x11/XReply.h"

namespace orvelle {

namespace {

// Since this version raw events come while another client grabs the keyboard, and tell the device that they are from.
constexpr std::uint16_t Major = 2;
constexpr std::uint16_t Minor = 1;

// "" where the server tells raw keys, else one sentence. Asked before all else, as the extension demands.
std::string Announce(xcb_connection_t* connection) {
    if (xcb_connection_has_error(connection))
        return "There is no X server to reach, so no key of this computer is read.";
    const xcb_query_extension_reply_t* const input = xcb_get_extension_data(connection, &xcb_input_id);
    if (input && input->present) {
        const auto question = xcb_input_xi_query_version(connection, Major, Minor);
        const auto reply = OwnReply(xcb_input_xi_query_version_reply(connection, question, nullptr));
        if (reply && std::pair(reply->major_version, reply->minor_version) >= std::pair(Major, Minor)) return "";
    }
    return "The X server doesn't tell of keys that other windows have, so no key of this computer is read.";
}

void SelectEvents(xcb_connection_t* connection, std::uint16_t devices, std::uint32_t events) {
    const struct {
        xcb_input_event_mask_t Head;
        std::uint32_t Events;
    } mask{{devices, 1}, events};
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection)); screen.rem > 0; xcb_screen_next(&screen))
        xcb_input_xi_select_events(connection, screen.data->root, 1, &mask.Head);
}

}  // namespace

RawKeys::RawKeys(EventLoop& eventLoop, SimulatorSide& simulator, const std::string& display)
    : loop(eventLoop),
      connection(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr)),
      problem(Announce(connection.get())),
      layout(connection.get()),
      keyboards(connection.get()),
      held(simulator) {
    if (!problem.empty()) return;
    inputExtension = xcb_get_extension_data(connection.get(), &xcb_input_id)->major_opcode;
    // A key comes once from its device and once from the master over it; told is the second, with the first's number.
    SelectEvents(connection.get(), XCB_INPUT_DEVICE_ALL_MASTER,
                 XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE);
    SelectEvents(connection.get(), XCB_INPUT_DEVICE_ALL, XCB_INPUT_XI_EVENT_MASK_HIERARCHY);
    served = loop.WhenReadable(xcb_get_file_descriptor(connection.get()), [this] { Serve(); });
    LookAtKeyboards();
}

void RawKeys::Serve() {
    while (const auto event = OwnReply(xcb_poll_for_event(connection.get()))) {
        layout.Notice(*event);
        if ((event->response_type & 0x7F) == XCB_GE_GENERIC) TakeInput(*event);
    }
    // Later, lest a key waits for it: the server tells a change of layout whenever another keyboard is used, too.
    if (layout.HasChanged()) looking = loop.After(0, [this] { LookAtKeyboards(); });
    xcb_flush(connection.get());
    if (!xcb_connection_has_error(connection.get())) return;
    served.End();
    looking.End();
    held.ReleaseAll();
    problem = "The connection to the X server is lost, so no key of this computer is read any more.";
    Told(problem);
}

void RawKeys::TakeInput(const xcb_generic_event_t& event) {
    const auto& key = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(event);
    if (key.extension != inputExtension) return;
    if (key.event_type == XCB_INPUT_HIERARCHY) looking = loop.After(0, [this] { LookAtKeyboards(); });
    if (!keyboards.Has(key.sourceid)) return;
    if (key.event_type == XCB_INPUT_RAW_KEY_PRESS) Press(key.sourceid, static_cast<int>(key.detail));
    if (key.event_type == XCB_INPUT_RAW_KEY_RELEASE) held.Release(key.sourceid, static_cast<int>(key.detail));
}

void RawKeys::Press(int device, int keyCode) {
    if (keyCode >= 0 && keyCode < static_cast<int>(names.size()))
        held.PressKey(device, keyCode, names[static_cast<std::size_t>(keyCode)]);
}

void RawKeys::LookAtKeyboards() {
    for (std::size_t keyCode = 0; keyCode < names.size(); ++keyCode)
        names[keyCode] = NameOfKey(layout, static_cast<int>(keyCode));
    keyboards.Read();
    std::map<int, std::vector<int>> down;
    for (const int device : keyboards.All()) down[device] = keyboards.KeysDown(device);
    held.KeepIf(
        [&](int device, int keyCode) { return std::ranges::find(down[device], keyCode) != down[device].end(); });
    for (const auto& [device, keyCodes] : down)
        for (const int keyCode : keyCodes) Press(device, keyCode);
    Serve();  // what came with the answers is inside the connection, where no descriptor tells of it
}

}  // namespace orvelle
