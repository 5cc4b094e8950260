#include <gtest/gtest.h>

#include <set>

#include "adapters/linux/VirtualKeys.h"
#include "adapters/linux/X11Keyboard.h"
#include "adapters/shared/ScanCodes.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::linux {
namespace {

constexpr const char* NoDisplay = ":65000";

std::string Name(X11Keyboard& keyboard, Long code) { return keyboard.GetKeyNameTextA(code << 16, 255); }

struct Named {
    Long Code;
    const char* Name;
};

constexpr Named CommonNames[] = {
    {1, "Esc"},
    {2, "1"},
    {11, "0"},
    {12, "-"},
    {14, "Backspace"},
    {15, "Tab"},
    {16, "Q"},
    {28, "Enter"},
    {29, "Ctrl"},
    {30, "A"},
    {39, ";"},
    {42, "Shift"},
    {43, "\\"},
    {46, "C"},
    {54, "Right Shift"},
    {56, "Alt"},
    {57, "Space"},
    {58, "Caps Lock"},
    {59, "F1"},
    {68, "F10"},
    {69, "Pause"},
    {70, "Scroll Lock"},
    {76, "Num 5"},
    {78, "Num +"},
    {83, "Num Del"},
    {87, "F11"},
    {88, "F12"},
    {118, "F24"},
    {ExtendedKey + 28, "Num Enter"},
    {ExtendedKey + 29, "Right Ctrl"},
    {ExtendedKey + 53, "Num /"},
    {ExtendedKey + 55, "Print Screen"},
    {ExtendedKey + 56, "Right Alt"},
    {ExtendedKey + 69, "Num Lock"},
    {ExtendedKey + 73, "Page Up"},
    {ExtendedKey + 75, "Left"},
    {ExtendedKey + 83, "Delete"},
    {ExtendedKey + 91, "Left Windows"},
    {0, "[0]"},
    {84, "[84]"},
    {255, "[255]"},
    {300, "[300]"},
    {511, "[511]"},
};

TEST(KeyNames, WithoutADisplayAreThoseOfAUsKeyboard) {
    HandLoop loop;
    X11Keyboard keyboard(loop, NoDisplay, KEY_GUARD);
    for (const Named& key : CommonNames) EXPECT_EQ(Name(keyboard, key.Code), key.Name) << key.Code;
}

TEST(KeyNames, OnAUsLayoutAreTheSame) {
    XServer server;
    server.SetLayout("us");
    HandLoop loop;
    X11Keyboard keyboard(loop, server.Display(), KEY_GUARD);
    for (const Named& key : CommonNames) EXPECT_EQ(Name(keyboard, key.Code), key.Name) << key.Code;
}

TEST(KeyNames, OfCharacterKeysFollowTheLayoutAsItIsNow) {
    XServer server;
    server.SetLayout("us");
    HandLoop loop;
    X11Keyboard keyboard(loop, server.Display(), KEY_GUARD);
    EXPECT_EQ(Name(keyboard, 16), "Q");

    server.SetLayout("fr");
    EXPECT_EQ(Name(keyboard, 16), "A");
    EXPECT_EQ(Name(keyboard, 30), "Q");
    EXPECT_EQ(Name(keyboard, 3), "É");
    EXPECT_EQ(Name(keyboard, 26), "^");  // a dead key
    EXPECT_EQ(Name(keyboard, 29), "Ctrl");

    XClient client(server.Display());
    server.SetLayout("us,ru");
    EXPECT_EQ(Name(keyboard, 16), "Q");
    client.ChooseLayout(1);
    EXPECT_EQ(Name(keyboard, 16), "Й");
    client.ChooseLayout(0);
    EXPECT_EQ(Name(keyboard, 16), "Q");
}

TEST(KeyNames, ExistForEachCodeWithAKeyAndDiffer) {
    HandLoop loop;
    X11Keyboard keyboard(loop, NoDisplay, KEY_GUARD);
    std::set<std::string> names;
    for (Long code = 0; code < KeyCodes; ++code) {
        const std::string name = Name(keyboard, code);
        EXPECT_TRUE(names.insert(name).second) << name;
        const bool isNumber = name == "[" + std::to_string(code) + "]";
        EXPECT_EQ(isNumber, LinuxKeyOfScanCode(code) == 0) << name;
    }
}

TEST(KeyNames, FitIntoTheBuffer) {
    HandLoop loop;
    X11Keyboard keyboard(loop, NoDisplay, KEY_GUARD);
    EXPECT_EQ(keyboard.GetKeyNameTextA(54 << 16, 6), "Right");
    EXPECT_EQ(keyboard.GetKeyNameTextA(54 << 16, 1), "");
    EXPECT_EQ(keyboard.GetKeyNameTextA(54 << 16, 0), "");
    EXPECT_EQ(keyboard.GetKeyNameTextA(54 << 16, -1), "");
}

TEST(VirtualKeys, AreDifferentForAllCodesAndLeadBackToThem) {
    HandLoop loop;
    X11Keyboard keyboard(loop, NoDisplay, KEY_GUARD);
    std::set<Long> seen;
    for (Long code = 0; code < KeyCodes; ++code) {
        const Long virtualKey = keyboard.MapVirtualKeyA(code, MapScanCodeToVirtualKeyExtended);
        EXPECT_TRUE(seen.insert(virtualKey).second) << code;
        EXPECT_EQ(CodeOfVirtualKey(virtualKey), code);
    }
}

TEST(VirtualKeys, HaveTheNumbersThatAreKnown) {
    HandLoop loop;
    X11Keyboard keyboard(loop, NoDisplay, KEY_GUARD);
    const auto mapped = [&](Long code) { return keyboard.MapVirtualKeyA(code, MapScanCodeToVirtualKeyExtended); };
    EXPECT_EQ(mapped(29), 0xA2);
    EXPECT_EQ(mapped(ExtendedKey + 29), 0xA3);
    EXPECT_EQ(mapped(ExtendedKey + 75), 0x25);
    EXPECT_EQ(mapped(75), 0x64);
    EXPECT_EQ(mapped(46), 'C');
    EXPECT_EQ(mapped(300), 0x1000 + 300);
}

TEST(VirtualKeys, OfWhatIsNoCodeAreZero) {
    HandLoop loop;
    X11Keyboard keyboard(loop, NoDisplay, KEY_GUARD);
    EXPECT_EQ(keyboard.MapVirtualKeyA(-1, MapScanCodeToVirtualKeyExtended), 0);
    EXPECT_EQ(keyboard.MapVirtualKeyA(512, MapScanCodeToVirtualKeyExtended), 0);
    EXPECT_EQ(keyboard.MapVirtualKeyA(29, 0), 0);
    EXPECT_EQ(CodeOfVirtualKey(-5), -1);
    EXPECT_EQ(CodeOfVirtualKey(0), -1);
    EXPECT_EQ(CodeOfVirtualKey(0xFF), -1);
    EXPECT_EQ(CodeOfVirtualKey(0x1000 + 29), -1);
    EXPECT_EQ(CodeOfVirtualKey(0x2000), -1);
}

}  // namespace
}  // namespace orvelle::linux
