#include "adapters/linux/VirtualKeys.h"

#include <array>

#include "adapters/shared/ScanCodes.h"

namespace orvelle::linux {

namespace {

constexpr Long Extended = ExtendedKey;

struct Row {
    Long Code;
    Long VirtualKey;
};

// The Windows desktop has no number for the keys that are missing here, or gives them one that another key has.
constexpr Row NumberedKeys[] = {
    // Esc
    {1, 0x1B},
    // 1 to 0, - = Backspace
    {2, '1'},
    {3, '2'},
    {4, '3'},
    {5, '4'},
    {6, '5'},
    {7, '6'},
    {8, '7'},
    {9, '8'},
    {10, '9'},
    {11, '0'},
    {12, 0xBD},
    {13, 0xBB},
    {14, 0x08},
    // Tab, the upper row of letters, [ ] Enter
    {15, 0x09},
    {16, 'Q'},
    {17, 'W'},
    {18, 'E'},
    {19, 'R'},
    {20, 'T'},
    {21, 'Y'},
    {22, 'U'},
    {23, 'I'},
    {24, 'O'},
    {25, 'P'},
    {26, 0xDB},
    {27, 0xDD},
    {28, 0x0D},
    // Ctrl, the middle row of letters, ; ' `
    {29, 0xA2},
    {30, 'A'},
    {31, 'S'},
    {32, 'D'},
    {33, 'F'},
    {34, 'G'},
    {35, 'H'},
    {36, 'J'},
    {37, 'K'},
    {38, 'L'},
    {39, 0xBA},
    {40, 0xDE},
    {41, 0xC0},
    // Shift, \, the lower row of letters, , . / Right Shift
    {42, 0xA0},
    {43, 0xDC},
    {44, 'Z'},
    {45, 'X'},
    {46, 'C'},
    {47, 'V'},
    {48, 'B'},
    {49, 'N'},
    {50, 'M'},
    {51, 0xBC},
    {52, 0xBE},
    {53, 0xBF},
    {54, 0xA1},
    // Num *, Alt, Space, Caps Lock
    {55, 0x6A},
    {56, 0xA4},
    {57, 0x20},
    {58, 0x14},
    // F1 to F10
    {59, 0x70},
    {60, 0x71},
    {61, 0x72},
    {62, 0x73},
    {63, 0x74},
    {64, 0x75},
    {65, 0x76},
    {66, 0x77},
    {67, 0x78},
    {68, 0x79},
    // Pause, Scroll Lock
    {69, 0x13},
    {70, 0x91},
    // The keypad by its rows: 7 8 9 -, 4 5 6 +, 1 2 3, 0 Del
    {71, 0x67},
    {72, 0x68},
    {73, 0x69},
    {74, 0x6D},
    {75, 0x64},
    {76, 0x65},
    {77, 0x66},
    {78, 0x6B},
    {79, 0x61},
    {80, 0x62},
    {81, 0x63},
    {82, 0x60},
    {83, 0x6E},
    // The key between Shift and Z; F11 and F12; Num =
    {86, 0xE2},
    {87, 0x7A},
    {88, 0x7B},
    {89, 0x92},
    // F13 to F23
    {100, 0x7C},
    {101, 0x7D},
    {102, 0x7E},
    {103, 0x7F},
    {104, 0x80},
    {105, 0x81},
    {106, 0x82},
    {107, 0x83},
    {108, 0x84},
    {109, 0x85},
    {110, 0x86},
    // Kana, Hanja, Ro, F24, Henkan, Muhenkan, Num ,
    {112, 0x15},
    {113, 0x19},
    {115, 0xC1},
    {118, 0x87},
    {121, 0x1C},
    {123, 0x1D},
    {126, 0xC2},
    // Previous and next track, Right Ctrl, mute, calculator, play, stop, volume down and up, home page
    {Extended + 16, 0xB1},
    {Extended + 25, 0xB0},
    {Extended + 29, 0xA3},
    {Extended + 32, 0xAD},
    {Extended + 33, 0xB7},
    {Extended + 34, 0xB3},
    {Extended + 36, 0xB2},
    {Extended + 46, 0xAE},
    {Extended + 48, 0xAF},
    {Extended + 50, 0xAC},
    // Num /, Print Screen, Right Alt, Num Lock
    {Extended + 53, 0x6F},
    {Extended + 55, 0x2C},
    {Extended + 56, 0xA5},
    {Extended + 69, 0x90},
    // Home, Up, Page Up, Left, Right, End, Down, Page Down, Insert, Delete
    {Extended + 71, 0x24},
    {Extended + 72, 0x26},
    {Extended + 73, 0x21},
    {Extended + 75, 0x25},
    {Extended + 77, 0x27},
    {Extended + 79, 0x23},
    {Extended + 80, 0x28},
    {Extended + 81, 0x22},
    {Extended + 82, 0x2D},
    {Extended + 83, 0x2E},
    // Left and right Windows, Menu, sleep
    {Extended + 91, 0x5B},
    {Extended + 92, 0x5C},
    {Extended + 93, 0x5D},
    {Extended + 95, 0x5F},
    // Browser: search, favourites, refresh, stop, forward, back
    {Extended + 101, 0xAA},
    {Extended + 102, 0xAB},
    {Extended + 103, 0xA8},
    {Extended + 104, 0xA9},
    {Extended + 105, 0xA7},
    {Extended + 106, 0xA6},
    // My computer, mail, media
    {Extended + 107, 0xB6},
    {Extended + 108, 0xB4},
    {Extended + 109, 0xB5},
};

struct Tables {
    std::array<Long, KeyCodes> VirtualKey{};
    std::array<Long, 256> Code{};
};

constexpr Tables AllKeys = [] {
    Tables tables;
    tables.Code.fill(-1);
    for (Long code = 0; code < KeyCodes; ++code)
        tables.VirtualKey[static_cast<std::size_t>(code)] = PrivateVirtualKeys + code;
    for (const Row& row : NumberedKeys) {
        tables.VirtualKey[static_cast<std::size_t>(row.Code)] = row.VirtualKey;
        tables.Code[static_cast<std::size_t>(row.VirtualKey)] = row.Code;
    }
    return tables;
}();

}  // namespace

Long VirtualKeyOfCode(Long code) { return AllKeys.VirtualKey[static_cast<std::size_t>(code)]; }

Long CodeOfVirtualKey(Long virtualKey) {
    if (virtualKey >= PrivateVirtualKeys && virtualKey < PrivateVirtualKeys + KeyCodes) {
        const Long code = virtualKey - PrivateVirtualKeys;
        return VirtualKeyOfCode(code) == virtualKey ? code : -1;
    }
    if (virtualKey < 0 || virtualKey >= static_cast<Long>(AllKeys.Code.size())) return -1;
    return AllKeys.Code[static_cast<std::size_t>(virtualKey)];
}

}  // namespace orvelle::linux
