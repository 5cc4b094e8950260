#include <gtest/gtest.h>

#include "adapters/linux/X11Keyboard.h"
#include "adapters/shared/ScanCodes.h"
#include "tests/linux/WaitUntil.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"

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
    XServer server;
    XClient client{server.Display()};
    X11Keyboard keyboard{server.Display(), KEY_GUARD};
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
    EXPECT_EQ(keyboard.Problem(), "");
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
    keyboard.ReleaseAll();
    EXPECT_EQ(client.KeysDown(), std::vector<int>{});
    EXPECT_EQ(client.NextStrokes(3).size(), 3U);

    // Nothing is released twice.
    keyboard.ReleaseAll();
    Press(keyboard, 1);
    EXPECT_EQ(client.NextStrokes(1), (Strokes{{9, true}}));
}

TEST(KeyboardProblem, WithoutAServerIsOneSentence) {
    X11Keyboard keyboard(":65000", KEY_GUARD);
    Press(keyboard, 29);
    Release(keyboard, 29);
    keyboard.ReleaseAll();
    EXPECT_EQ(keyboard.Problem(), "There is no X server to reach, so no key can be pressed on this computer.");
}

TEST(KeyboardProblem, WithoutTheTestExtensionIsOneSentence) {
    XServer server({"-extension", "XTEST"});
    X11Keyboard keyboard(server.Display(), KEY_GUARD);
    Press(keyboard, 29);
    EXPECT_EQ(keyboard.Problem(), "The X server lacks the XTEST extension, so no key can be pressed on this computer.");
    EXPECT_EQ(keyboard.GetKeyNameTextA(30 << 16, 255), "A");
}

TEST(KeyboardProblem, OfALostServerIsOneSentence) {
    XServer server;
    X11Keyboard keyboard(server.Display(), KEY_GUARD);
    Press(keyboard, 29);
    EXPECT_EQ(keyboard.Problem(), "");
    server.End();
    Release(keyboard, 29);
    Press(keyboard, 30);
    EXPECT_EQ(keyboard.GetKeyNameTextA(30 << 16, 255), "A");
    keyboard.ReleaseAll();
    EXPECT_EQ(keyboard.Problem(), "The connection to the X server is lost, so no key can be pressed on this computer.");
}

TEST(KeyboardProblem, OfAMissingGuardIsToldAndKeysWorkAllTheSame) {
    XServer server;
    XClient client(server.Display());
    X11Keyboard keyboard(server.Display(), "/nowhere/orvelle-key-guard");
    EXPECT_EQ(keyboard.Problem(), "");
    Press(keyboard, 30);
    EXPECT_EQ(client.NextStrokes(1), (Strokes{{38, true}}));
    EXPECT_EQ(keyboard.Problem(),
              "The program /nowhere/orvelle-key-guard can't be started, so a key that is held down stays down if the "
              "panel is killed.");
}

}  // namespace
}  // namespace orvelle::linux
