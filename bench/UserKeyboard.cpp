#include "bench/UserKeyboard.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <stdexcept>

#include "adapters/x11/ServerKeyboards.h"
#include "adapters/x11/XReply.h"

namespace orvelle {

UserKeyboard::UserKeyboard(const std::string& display, int serversKeyCode)
    : connection(xcb_connect(display.c_str(), nullptr)), keyCode(serversKeyCode) {
    const auto* const input = xcb_get_extension_data(connection.get(), &xcb_input_id);
    if (input == nullptr || !input->present) throw std::runtime_error("no keyboards can be told apart on " + display);
    firstEvent = input->first_event;
    const auto question = xcb_input_xi_query_version(connection.get(), 2, 1);
    OwnReply(xcb_input_xi_query_version_reply(connection.get(), question, nullptr));
    const std::vector<int> keyboards = ServerKeyboards(connection.get()).All();
    if (keyboards.empty()) throw std::runtime_error(display + " has no keyboard");
    device = keyboards.front();
}

// The test extension takes strokes of a named device where their type is one of the input extension's: 1 for a press, 2
// for a release.
void UserKeyboard::Strike(KeyStroke stroke) {
    const int type = firstEvent + (stroke == KeyStroke::Down ? 1 : 2);
    xcb_test_fake_input(connection.get(), static_cast<std::uint8_t>(type), static_cast<std::uint8_t>(keyCode),
                        XCB_CURRENT_TIME, XCB_NONE, 0, 0, static_cast<std::uint8_t>(device));
    xcb_flush(connection.get());
}

}  // namespace orvelle
