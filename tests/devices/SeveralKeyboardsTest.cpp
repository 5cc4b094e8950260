// Keys that the panel holds while another keyboard is used, comes or goes, and with it the server's map of keys.
#include <gtest/gtest.h>
#include <xcb/xinput.h>

#include <algorithm>
#include <memory>

#include "adapters/linux/X11Keyboard.h"
#include "adapters/x11/XReply.h"
#include "apps/UserStrokes.h"
#include "tests/linux/WaitUntil.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::linux {
namespace {

constexpr Long Held[] = {29, 30, 42, 56};
constexpr int AKey = 38;
constexpr int YKey = 29;

class SeveralKeyboards : public testing::Test {
protected:
    SeveralKeyboards() {
        for (const Long code : Held) keyboard.keybd_event(0, code, 0, 0);
        EXPECT_TRUE(WaitUntil([this] { return client.KeysDown().size() == std::size(Held); }));
    }
    void ExpectReleased() {
        for (const Long code : Held) keyboard.keybd_event(0, code, KeyEventUp, 0);
        EXPECT_TRUE(WaitUntil([this] { return client.KeysDown().empty(); }));
    }

    XServer server;
    UserStrokes user{server.Display()};
    XClient client{server.Display()};
    HandLoop loop;
    X11Keyboard keyboard{loop, server.Display(), KEY_GUARD};
};

TEST_F(SeveralKeyboards, LeaveHeldWhatTheUserStrikesAndLetItGoLater) {
    const std::vector<int> down = client.KeysDown();
    user.Press(YKey);
    user.Release(YKey);
    EXPECT_EQ(client.KeysDown(), down);
    // The server lets go of a key that two keyboards hold with either of them.
    user.Press(AKey);
    user.Release(AKey);
    ExpectReleased();
}

TEST_F(SeveralKeyboards, OfAnotherLayoutLetGoWhatIsHeld) {
    server.SetLayout("fr");
    user.Press(YKey);
    server.SetLayout("de");
    user.Release(YKey);
    ExpectReleased();
}

// A pair of masters has keyboards of its own.
TEST_F(SeveralKeyboards, ThatComeAndGoLetGoWhatIsHeld) {
    struct {
        xcb_input_add_master_t Head;
        char Name[4];
    } pair{{XCB_INPUT_HIERARCHY_CHANGE_TYPE_ADD_MASTER, 3, 3, 1, 1}, {'n', 'e', 'w', 0}};
    static_assert(sizeof pair == 12);
    xcb_connection_t* const connection = xcb_connect(server.Display().c_str(), nullptr);
    OwnReply(xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
    const auto added = xcb_input_xi_change_hierarchy_checked(
        connection, 1, reinterpret_cast<const xcb_input_hierarchy_change_t*>(&pair));
    const XReply<xcb_generic_error_t> error(xcb_request_check(connection, added));
    EXPECT_EQ(error, nullptr);
    EXPECT_EQ(client.KeysDown().size(), std::size(Held));
    ExpectReleased();
    xcb_disconnect(connection);
}

}  // namespace
}  // namespace orvelle::linux
