#include "apps/UserStrokes.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include "adapters/x11/ServerKeyboards.h"
#include "adapters/x11/XReply.h"

namespace orvelle {

UserStrokes::UserStrokes(const std::string& display)
    : connection(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr)) {
    const xcb_query_extension_reply_t* const input = xcb_get_extension_data(connection.get(), &xcb_input_id);
    if (input == nullptr || !input->present) return;
    firstEvent = input->first_event;
    OwnReply(xcb_input_xi_query_version_reply(connection.get(), xcb_input_xi_query_version(connection.get(), 2, 1),
                                              nullptr));
    const std::vector<int> keyboards = ServerKeyboards(connection.get()).All();
    if (!keyboards.empty()) keyboard = keyboards.front();
}

// The test extension takes strokes of a named device where their type is one of the input extension's.
void UserStrokes::Send(int keyCode, int stroke) {
    if (keyboard == 0) return;
    const auto question = xcb_test_fake_input_checked(connection.get(), static_cast<std::uint8_t>(firstEvent + stroke),
                                                      static_cast<std::uint8_t>(keyCode), XCB_CURRENT_TIME, XCB_NONE, 0,
                                                      0, static_cast<std::uint8_t>(keyboard));
    OwnReply(xcb_request_check(connection.get(), question));
}

}  // namespace orvelle
