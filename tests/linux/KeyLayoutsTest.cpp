// Strokes and names under the layouts that users have: a stroke reaches the key that stands where the scan code says,
// whatever is printed on it, and is called by what is printed on it. Held keys come up by the places at which they went
// down, whatever becomes of the layout meanwhile.
#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <set>

#include "adapters/linux/X11Keyboard.h"
#include "adapters/shared/KeyNames.h"
#include "adapters/shared/ScanCodes.h"
#include "tests/linux/WaitUntil.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::linux {
namespace {

constexpr Long Extended = ExtendedKey;

// The server's own names of places on a keyboard: a row from the left, by its first scan code.
struct Row {
    Long First;
    std::vector<const char*> Places;
};

const std::vector<Row> Keyboard = {
    {1, {"ESC"}},
    {2, {"AE01", "AE02", "AE03", "AE04", "AE05", "AE06", "AE07", "AE08", "AE09", "AE10", "AE11", "AE12", "BKSP"}},
    {15, {"TAB"}},
    {16, {"AD01", "AD02", "AD03", "AD04", "AD05", "AD06", "AD07", "AD08", "AD09", "AD10", "AD11", "AD12", "RTRN"}},
    {29, {"LCTL"}},
    {30, {"AC01", "AC02", "AC03", "AC04", "AC05", "AC06", "AC07", "AC08", "AC09", "AC10", "AC11", "TLDE", "LFSH"}},
    {43, {"BKSL"}},
    {44, {"AB01", "AB02", "AB03", "AB04", "AB05", "AB06", "AB07", "AB08", "AB09", "AB10", "RTSH", "KPMU", "LALT"}},
    {57, {"SPCE", "CAPS", "FK01", "FK02", "FK03", "FK04", "FK05", "FK06", "FK07", "FK08", "FK09", "FK10", "PAUS"}},
    {70, {"SCLK", "KP7", "KP8", "KP9", "KPSU", "KP4", "KP5", "KP6", "KPAD", "KP1", "KP2", "KP3", "KP0", "KPDL"}},
    {86, {"LSGT", "FK11", "FK12", "KPEQ"}},
    {100, {"FK13", "FK14", "FK15", "FK16", "FK17", "FK18", "FK19", "FK20", "FK21", "FK22", "FK23"}},
    {112, {"HKTG", "HJCV", "HNGL", "AB11"}},
    {118, {"FK24", "HIRA", "KATA", "HENK"}},
    {123, {"MUHE"}},
    {125, {"AE13", "I129"}},
    {Extended + 28, {"KPEN", "RCTL"}},
    {Extended + 32, {"MUTE"}},
    {Extended + 46, {"VOL-"}},
    {Extended + 48, {"VOL+"}},
    {Extended + 53, {"KPDV"}},
    {Extended + 55, {"PRSC", "RALT"}},
    {Extended + 69, {"NMLK"}},
    {Extended + 71, {"HOME", "UP", "PGUP"}},
    {Extended + 75, {"LEFT"}},
    {Extended + 77, {"RGHT"}},
    {Extended + 79, {"END", "DOWN", "PGDN", "INS", "DELE"}},
    {Extended + 91, {"LWIN", "RWIN", "COMP", "POWR"}},
};

struct Layout {
    const char* Name;
    // What is printed on the keys that type: from the key 1 on, from Q on, from A on, from Z on, then left of 1, left
    // of Enter, and right of the left Shift.
    std::vector<std::string> Digits, Upper, Middle, Lower, Others;
};

const Layout Layouts[] = {
    {"us",
     {"1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "-", "="},
     {"Q", "W", "E", "R", "T", "Y", "U", "I", "O", "P", "[", "]"},
     {"A", "S", "D", "F", "G", "H", "J", "K", "L", ";", "'"},
     {"Z", "X", "C", "V", "B", "N", "M", ",", ".", "/"},
     {"`", "\\", "<"}},
    {"de",
     {"1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "ß", "´"},
     {"Q", "W", "E", "R", "T", "Z", "U", "I", "O", "P", "Ü", "+"},
     {"A", "S", "D", "F", "G", "H", "J", "K", "L", "Ö", "Ä"},
     {"Y", "X", "C", "V", "B", "N", "M", ",", ".", "-"},
     {"^", "#", "<"}},
    {"fr",
     {"&", "É", "\"", "'", "(", "-", "È", "_", "Ç", "À", ")", "="},
     {"A", "Z", "E", "R", "T", "Y", "U", "I", "O", "P", "^", "$"},
     {"Q", "S", "D", "F", "G", "H", "J", "K", "L", "M", "Ù"},
     {"W", "X", "C", "V", "B", "N", ",", ";", ":", "!"},
     {"²", "*", "<"}},
    // Its keys left of Enter and right of the left Shift choose a level and type nothing.
    {"de(neo)",
     {"1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "-", "`"},
     {"X", "V", "L", "C", "W", "K", "H", "G", "F", "Q", "ß", "´"},
     {"U", "I", "A", "E", "O", "S", "N", "R", "T", "D", "Y"},
     {"Ü", "Ö", "Ä", "P", "Z", "B", "M", ",", ".", "J"},
     {"^", "\\", "<"}},
};

void PrintTo(const Layout& layout, std::ostream* stream) { *stream << layout.Name; }

// What the server tells of its keyboard now.
class ServerKeymap {
public:
    explicit ServerKeymap(const std::string& display)
        : connection(xcb_connect(display.c_str(), nullptr)), context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES)) {
        xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                    XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr);
        const int keyboard = xkb_x11_get_core_keyboard_device_id(connection);
        map = xkb_x11_keymap_new_from_device(context, connection, keyboard, XKB_KEYMAP_COMPILE_NO_FLAGS);
        state = xkb_x11_state_new_from_device(map, connection, keyboard);
    }
    ServerKeymap(const ServerKeymap&) = delete;
    ServerKeymap& operator=(const ServerKeymap&) = delete;
    ~ServerKeymap() {
        xkb_state_unref(state);
        xkb_keymap_unref(map);
        xkb_context_unref(context);
        xcb_disconnect(connection);
    }

    std::string PlaceOf(int keyCode) const {
        const char* const name = xkb_keymap_key_get_name(map, static_cast<xkb_keycode_t>(keyCode));
        return name ? name : "";
    }
    // Without those that are locked.
    xkb_mod_mask_t ModifiersHeld() const { return xkb_state_serialize_mods(state, XKB_STATE_MODS_DEPRESSED); }

private:
    xcb_connection_t* connection;
    xkb_context* context;
    xkb_keymap* map;
    xkb_state* state;
};

class KeyLayouts : public testing::TestWithParam<Layout> {
protected:
    KeyLayouts() { server.SetLayout(GetParam().Name); }

    void Stroke(Long code, Long flags) {
        keyboard.keybd_event(keyboard.MapVirtualKeyA(code, MapScanCodeToVirtualKeyExtended), code % 256,
                             flags | KeyEventExtended, 0);
    }
    std::string Name(Long code) { return keyboard.GetKeyNameTextA(code << 16, 255); }
    void ExpectNames(Long first, const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            EXPECT_EQ(Name(first), name) << first;
            ++first;
        }
    }

    XServer server;
    XClient client{server.Display()};
    HandLoop loop;
    X11Keyboard keyboard{loop, server.Display(), KEY_GUARD};
};

TEST_P(KeyLayouts, LeaveEachScanCodeToTheKeyAtItsPlace) {
    const ServerKeymap keymap(server.Display());
    for (const Row& row : Keyboard) {
        Long code = row.First;
        for (const char* const place : row.Places) {
            Stroke(code, 0);
            Stroke(code, KeyEventUp);
            const std::vector<SeenStroke> seen = client.NextStrokes(2);
            ASSERT_EQ(seen.size(), 2U) << code;
            EXPECT_EQ(keymap.PlaceOf(seen[0].KeyCode), place) << code;
            EXPECT_TRUE(seen[0].IsDown && !seen[1].IsDown && seen[0].KeyCode == seen[1].KeyCode) << code;
            ++code;
        }
    }
}

TEST_P(KeyLayouts, NameKeysByWhatIsPrintedOnThem) {
    const Layout& layout = GetParam();
    ExpectNames(2, layout.Digits);
    ExpectNames(16, layout.Upper);
    ExpectNames(30, layout.Middle);
    ExpectNames(44, layout.Lower);
    EXPECT_EQ(Name(41), layout.Others[0]);
    EXPECT_EQ(Name(43), layout.Others[1]);
    EXPECT_EQ(Name(86), layout.Others[2]);
}

TEST_P(KeyLayouts, NameNoTwoKeysAlikeAndOthersByTheirPlaces) {
    std::set<std::string> names;
    for (Long code = 0; code < KeyCodes; ++code) {
        EXPECT_TRUE(names.insert(Name(code)).second) << Name(code) << " " << code;
        const KeyDescription key = DescribeKey(code);
        EXPECT_TRUE(key.IsCharacter || key.Name.empty() || Name(code) == key.Name) << code;
    }
}

// Each layout gives other keys the modifiers.
TEST_P(KeyLayouts, ThatComeWhileKeysAreHeldLeaveNoneDown) {
    for (const Layout& next : Layouts) {
        const std::vector<Long> held{29, 30, 42, 43, 54, 56, 58, 86, Extended + 29, Extended + 56};
        for (const Long code : held) Stroke(code, 0);
        ASSERT_TRUE(WaitUntil([&] { return client.KeysDown().size() == held.size(); }));
        const std::vector<int> down = client.KeysDown();
        server.SetLayout(next.Name);
        EXPECT_EQ(client.KeysDown(), down) << next.Name;
        for (const Long code : held) Stroke(code, KeyEventUp);
        EXPECT_TRUE(WaitUntil([&] { return client.KeysDown().empty(); })) << next.Name;
        EXPECT_EQ(ServerKeymap(server.Display()).ModifiersHeld(), 0U) << next.Name;
        server.SetLayout(GetParam().Name);
    }
}

INSTANTIATE_TEST_SUITE_P(Of, KeyLayouts, testing::ValuesIn(Layouts), [](const auto& layout) {
    const std::string name = layout.param.Name;
    return name == "de(neo)" ? "neo" : name;
});

}  // namespace
}  // namespace orvelle::linux
