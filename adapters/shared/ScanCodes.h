// The panel's key codes and those of this computer, both ways. A key code is a set 1 scan code as a key message of the
// Windows desktop bears it: bits 0 to 7 the make code, 256 for a key with the E0 prefix (PC/AT keyboard, scan code set
// 1). The other side is the key number of linux/input-event-codes.h; an X server's key code is 8 more, and so is the
// native scan code that a toolkit tells. 0 is no key on either side. Pause and Num Lock share the make code 69 and are
// told apart as the Windows desktop does: 69 is Pause, 69 + 256 Num Lock.
#pragma once

#include <array>
#include <cstddef>

#include "platform/Types.h"

namespace orvelle {

constexpr Long ExtendedKey = 256;
constexpr Long KeyCodes = 512;
constexpr Long XKeyCodeOffset = 8;

namespace scancodes {

struct Pair {
    Long Linux;
    Long Code;
};

// The keys whose two numbers differ. The others, Esc (1) to keypad "." (83), the key between left Shift and Z (86),
// F11 (87) and F12 (88), have the same one on both sides.
constexpr Pair Differing[] = {
    {69, 69 + ExtendedKey},    // Num Lock
    {89, 115},                 // Ro
    {90, 120},                 // Katakana
    {91, 119},                 // Hiragana
    {92, 121},                 // Henkan
    {93, 112},                 // Katakana and Hiragana
    {94, 123},                 // Muhenkan
    {95, 92},                  // keypad comma of Japanese keyboards
    {96, 28 + ExtendedKey},    // keypad Enter
    {97, 29 + ExtendedKey},    // right Ctrl
    {98, 53 + ExtendedKey},    // keypad /
    {99, 55 + ExtendedKey},    // Print Screen
    {100, 56 + ExtendedKey},   // right Alt
    {102, 71 + ExtendedKey},   // Home
    {103, 72 + ExtendedKey},   // Up
    {104, 73 + ExtendedKey},   // Page Up
    {105, 75 + ExtendedKey},   // Left
    {106, 77 + ExtendedKey},   // Right
    {107, 79 + ExtendedKey},   // End
    {108, 80 + ExtendedKey},   // Down
    {109, 81 + ExtendedKey},   // Page Down
    {110, 82 + ExtendedKey},   // Insert
    {111, 83 + ExtendedKey},   // Delete
    {113, 32 + ExtendedKey},   // mute
    {114, 46 + ExtendedKey},   // volume down
    {115, 48 + ExtendedKey},   // volume up
    {116, 94 + ExtendedKey},   // power
    {117, 89},                 // keypad =
    {119, 69},                 // Pause
    {121, 126},                // keypad comma
    {122, 114},                // Hangul
    {123, 113},                // Hanja
    {124, 125},                // Yen
    {125, 91 + ExtendedKey},   // left Windows key
    {126, 92 + ExtendedKey},   // right Windows key
    {127, 93 + ExtendedKey},   // menu key
    {128, 104 + ExtendedKey},  // browser stop
    {140, 33 + ExtendedKey},   // calculator
    {142, 95 + ExtendedKey},   // sleep
    {143, 99 + ExtendedKey},   // wake up
    {155, 108 + ExtendedKey},  // mail
    {156, 102 + ExtendedKey},  // favourites
    {157, 107 + ExtendedKey},  // my computer
    {158, 106 + ExtendedKey},  // browser back
    {159, 105 + ExtendedKey},  // browser forward
    {163, 25 + ExtendedKey},   // next track
    {164, 34 + ExtendedKey},   // play and pause
    {165, 16 + ExtendedKey},   // previous track
    {166, 36 + ExtendedKey},   // stop the player
    {172, 50 + ExtendedKey},   // home page
    {173, 103 + ExtendedKey},  // browser refresh
    {183, 100},                // F13
    {184, 101},                // F14
    {185, 102},                // F15
    {186, 103},                // F16
    {187, 104},                // F17
    {188, 105},                // F18
    {189, 106},                // F19
    {190, 107},                // F20
    {191, 108},                // F21
    {192, 109},                // F22
    {193, 110},                // F23
    {194, 118},                // F24
    {217, 101 + ExtendedKey},  // search
    {226, 109 + ExtendedKey},  // media
};

using Table = std::array<Long, KeyCodes>;

template <typename Enter>
constexpr void ForEachKey(Enter enter) {
    for (Long same = 1; same <= 88; ++same)
        if (same != 69 && same != 84 && same != 85) enter(same, same);
    for (const Pair& pair : Differing) enter(pair.Linux, pair.Code);
}

constexpr Table CodeByLinux = [] {
    Table table{};
    ForEachKey([&](Long linuxKey, Long code) { table[static_cast<std::size_t>(linuxKey)] = code; });
    return table;
}();

constexpr Table LinuxByCode = [] {
    Table table{};
    ForEachKey([&](Long linuxKey, Long code) { table[static_cast<std::size_t>(code)] = linuxKey; });
    return table;
}();

}  // namespace scancodes

// 0 for a key that has no scan code of its own, or for a number out of range.
constexpr Long ScanCodeOfLinuxKey(Long linuxKey) {
    return linuxKey < 0 || linuxKey >= KeyCodes ? 0 : scancodes::CodeByLinux[static_cast<std::size_t>(linuxKey)];
}

// 0 for a code without a key, or out of range.
constexpr Long LinuxKeyOfScanCode(Long code) {
    return code < 0 || code >= KeyCodes ? 0 : scancodes::LinuxByCode[static_cast<std::size_t>(code)];
}

}  // namespace orvelle
