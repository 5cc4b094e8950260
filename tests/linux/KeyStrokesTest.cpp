#include <gtest/gtest.h>

#include "adapters/linux/X11Keyboard.h"
#include "adapters/shared/ScanCodes.h"
#include "tests/linux/WaitUntil.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::linux {
namespace {

using Strokes = std::vector<SeenStroke>;

// As the panel sends a stroke: the virtual key of the whole code, the low byte, and the extended flag whatever it is.
void Send(X11Keyboard& keyboard, Long code, Long flags) {
    keyboard.keybd_event(keyboard.MapVirtualKeyA(code, MapScanCodeToVirtualKeyExtended), code % 256,
                         flags | (code > 0 ? KeyEventExtended : 0), 0);
}

void Press(X11Keyboard& keyboard, Long code) { Send(keyboard, code, 0); }
void Release(X11Keyboard& keyboard, Long code) { Send(keyboard, code, KeyEventUp); }

int XKey(Long code) { return static_cast<int>(LinuxKeyOfScanCode(code) + XKeyCodeOffset); }

class KeyStrokes : public testing::Test {
protected:
    KeyStrokes() {
        keyboard.Keys.Told = [this](const std::string& sentence) { told += sentence; };
    }

    std::string told;
    XServer server;
    XClient client{server.Display()};
    HandLoop loop;
    X11Keyboard keyboard{loop, server.Display(), KEY_GUARD};
};

TEST_F(KeyStrokes, OfEveryCodeWithAKeyReachAnotherClient) {
    int keys = 0;
    for (Long code = 0; code < KeyCodes; ++code) {
        if (LinuxKeyOfScanCode(code) == 0) continue;
        Press(keyboard, code);
        Release(keyboard, code);
        ASSERT_EQ(client.NextStrokes(2), (Strokes{{XKey(code), true}, {XKey(code), false}})) << code;
        ++keys;
    }
    EXPECT_GT(keys, 130);
    EXPECT_EQ(told, "");
}

TEST_F(KeyStrokes, OfCodesWithoutAKeyDoNothing) {
    for (Long code = 0; code < KeyCodes; ++code) {
        if (LinuxKeyOfScanCode(code) != 0) continue;
        Press(keyboard, code);
        Release(keyboard, code);
    }
    Press(keyboard, 1);
    EXPECT_EQ(client.NextStrokes(1), (Strokes{{9, true}}));
}

TEST_F(KeyStrokes, TellLeftFromRight) {
    Press(keyboard, 29);
    EXPECT_EQ(client.NextStrokes(1), (Strokes{{37, true}}));
    Press(keyboard, ExtendedKey + 29);
    EXPECT_EQ(client.NextStrokes(1), (Strokes{{105, true}}));
    Release(keyboard, 29);
    EXPECT_EQ(client.NextStrokes(1), (Strokes{{37, false}}));
    EXPECT_EQ(client.KeysDown(), std::vector<int>{105});
}

TEST_F(KeyStrokes, OfUnknownVirtualKeysGoByTheScanByte) {
    keyboard.keybd_event(0, 30, 0, 0);
    keyboard.keybd_event(0, 30, KeyEventUp, 0);
    EXPECT_EQ(client.NextStrokes(2), (Strokes{{38, true}, {38, false}}));
}

TEST_F(KeyStrokes, StayDownUntilReleased) {
    Press(keyboard, 29);
    Press(keyboard, 46);
    EXPECT_EQ(client.NextStrokes(2), (Strokes{{37, true}, {54, true}}));
    EXPECT_EQ(client.KeysDown(), (std::vector<int>{37, 54}));
    Release(keyboard, 29);
    Release(keyboard, 46);
    EXPECT_EQ(client.NextStrokes(2), (Strokes{{37, false}, {54, false}}));
    EXPECT_EQ(client.KeysDown(), std::vector<int>{});
}

TEST_F(KeyStrokes, OfAllHeldKeysEndWithReleaseAll) {
    for (const Long code : {29, 46, ExtendedKey + 29, 88}) Press(keyboard, code);
    Release(keyboard, 46);
    client.NextStrokes(5);
    keyboard.Keys.ReleaseAll();
    EXPECT_EQ(client.KeysDown(), std::vector<int>{});
    EXPECT_EQ(client.NextStrokes(3).size(), 3U);

    // Nothing is released twice.
    keyboard.Keys.ReleaseAll();
    Press(keyboard, 1);
    EXPECT_EQ(client.NextStrokes(1), (Strokes{{9, true}}));
}

}  // namespace
}  // namespace orvelle::linux
