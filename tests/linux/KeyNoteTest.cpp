// The note of held keys on the X server: which it names, and how often it wakes the programs that watch the root
// window.
#include <gtest/gtest.h>

#include <memory>

#include "adapters/linux/X11Keyboard.h"
#include "adapters/x11/XReply.h"
#include "tests/linux/WaitUntil.h"
#include "tests/linux/XServer.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::linux {
namespace {

using Keys = std::vector<int>;

constexpr Long Control = 29;  // scan codes
constexpr Long KeyC = 46;
constexpr int XControl = 37;
constexpr int XKeyC = 54;

class KeyNote : public testing::Test {
protected:
    KeyNote() {
        keyboard.Keys.Begin();
        xcb_connection_t* const connection = watcher.Connection();
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection, xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root,
                                     XCB_CW_EVENT_MASK, &events);
        watcher.Finish();
    }

    void Press(Long code) { keyboard.keybd_event(0, code, 0, 0); }
    void Release(Long code) { keyboard.keybd_event(0, code, KeyEventUp, 0); }
    // Since the last time. A release has been taken by the server when it returns.
    int Changes() {
        watcher.Finish();
        int changes = 0;
        watcher.TakeEvents(
            [&](const xcb_generic_event_t& event) { changes += event.response_type == XCB_PROPERTY_NOTIFY; });
        return changes;
    }

    XServer server;
    XTestConnection watcher{server.Display()};
    HandLoop loop;
    X11Keyboard keyboard{loop, server.Display(), KEY_GUARD};
};

TEST_F(KeyNote, OfAKeyThatIsStruckAgainAndAgainIsWrittenOnce) {
    for (int stroke = 0; stroke < 10; ++stroke) {
        Press(Control);
        Release(Control);
    }
    EXPECT_EQ(Changes(), 1);
    EXPECT_EQ(watcher.NotedKeys(), (Keys{XControl}));
    Press(KeyC);
    Press(Control);
    Release(Control);
    EXPECT_EQ(Changes(), 1);
    EXPECT_EQ(watcher.NotedKeys(), (Keys{XControl, XKeyC}));
}

TEST_F(KeyNote, IsClearedAtTheFirstBeatThatFindsNothingHeld) {
    Press(Control);
    loop.Run(5000);
    // A press is on its way when it returns.
    EXPECT_TRUE(WaitUntil([this] { return watcher.NotedKeys() == Keys{XControl}; }));
    Release(Control);
    loop.Run(1000);
    Release(KeyC);  // after which the server has taken what was sent before
    EXPECT_EQ(watcher.NotedKeys(), Keys{});
    EXPECT_TRUE(loop.Idle());
}

TEST_F(KeyNote, IsClearedAtTheEnd) {
    Press(Control);
    keyboard.Keys.ReleaseAll();
    Release(KeyC);
    EXPECT_EQ(watcher.NotedKeys(), Keys{});
    EXPECT_TRUE(loop.Idle());
}

}  // namespace
}  // namespace orvelle::linux
