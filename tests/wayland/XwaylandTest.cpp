// Strokes on the X server that a Wayland session brings along: they reach the windows of X programs, and the user is
// told that they reach no other.
#include <gtest/gtest.h>

#include "adapters/linux/X11Keyboard.h"
#include "adapters/x11/Xwayland.h"
#include "tests/linux/WaitUntil.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::linux {
namespace {

bool IsXwaylandAt(const std::string& display) {
    xcb_connection_t* const connection = xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr);
    const bool is = IsXwayland(connection);
    xcb_disconnect(connection);
    return is;
}

TEST(Xwayland, IsToldFromAnotherXServer) {
    EXPECT_TRUE(IsXwaylandAt(""));
    const XServer other;
    EXPECT_FALSE(IsXwaylandAt(other.Display()));
    EXPECT_FALSE(IsXwaylandAt(":65000"));
}

TEST(Xwayland, TakesStrokesForXProgramsAndThatIsToldOnce) {
    HandLoop loop;
    XClient client("");
    std::string told;
    X11Keyboard keyboard(loop, "", KEY_GUARD, -1, "/nowhere/uinput");
    keyboard.Keys.LimitTold = [&](const std::string& sentence) { told += sentence + "\n"; };
    keyboard.Keys.Begin();
    keyboard.keybd_event(0, 30, 0, 0);
    EXPECT_TRUE(WaitUntil([&] { return client.KeysDown() == std::vector<int>{38}; }));
    keyboard.keybd_event(0, 30, KeyEventUp, 0);
    EXPECT_TRUE(WaitUntil([&] { return client.KeysDown().empty(); }));
    EXPECT_EQ(
        told,
        "In this Wayland session the keys that the panel presses reach only the windows of X programs, until this "
        "user may write to /nowhere/uinput.\n");
}

}  // namespace
}  // namespace orvelle::linux
