#include "tests/devices/UserStrokes.h"

#include <gtest/gtest.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include "adapters/x11/ServerKeyboards.h"
#include "adapters/x11/XReply.h"

namespace orvelle {

UserStrokes::UserStrokes(const std::string& display) : connection(xcb_connect(display.c_str(), nullptr)) {
    firstEvent = xcb_get_extension_data(connection.get(), &xcb_input_id)->first_event;
    OwnReply(xcb_input_xi_query_version_reply(connection.get(), xcb_input_xi_query_version(connection.get(), 2, 1),
                                              nullptr));
    const std::vector<int> keyboards = ServerKeyboards(connection.get()).All();
    EXPECT_FALSE(keyboards.empty());
    if (!keyboards.empty()) keyboard = keyboards.front();
}

// The test extension takes strokes of a named device where their type is one of the input extension's.
void UserStrokes::Send(int keyCode, int stroke) {
    const auto question = xcb_test_fake_input_checked(connection.get(), static_cast<std::uint8_t>(firstEvent + stroke),
                                                      static_cast<std::uint8_t>(keyCode), XCB_CURRENT_TIME, XCB_NONE, 0,
                                                      0, static_cast<std::uint8_t>(keyboard));
    EXPECT_EQ(OwnReply(xcb_request_check(connection.get(), question)), nullptr);
}

}  // namespace orvelle
