#include "adapters/linux/KeyTable.h"

#include <array>

#include "adapters/shared/ScanCodes.h"

namespace orvelle::linux {

namespace {

constexpr Long None = 0;  // the Windows desktop has no number for this key, or gives it one that another key has
constexpr Long Extended = ExtendedKey;

struct Row {
    Long Code;
    Long VirtualKey;
    std::string_view Name;
};

// Keys whose name is the character that the layout gives them.
constexpr Row CharacterKeys[] = {
    {2, '1', "1"},     {3, '2', "2"},      {4, '3', "3"},   {5, '4', "4"},   {6, '5', "5"},   {7, '6', "6"},
    {8, '7', "7"},     {9, '8', "8"},      {10, '9', "9"},  {11, '0', "0"},  {12, 0xBD, "-"}, {13, 0xBB, "="},
    {16, 'Q', "Q"},    {17, 'W', "W"},     {18, 'E', "E"},  {19, 'R', "R"},  {20, 'T', "T"},  {21, 'Y', "Y"},
    {22, 'U', "U"},    {23, 'I', "I"},     {24, 'O', "O"},  {25, 'P', "P"},  {26, 0xDB, "["}, {27, 0xDD, "]"},
    {30, 'A', "A"},    {31, 'S', "S"},     {32, 'D', "D"},  {33, 'F', "F"},  {34, 'G', "G"},  {35, 'H', "H"},
    {36, 'J', "J"},    {37, 'K', "K"},     {38, 'L', "L"},  {39, 0xBA, ";"}, {40, 0xDE, "'"}, {41, 0xC0, "`"},
    {43, 0xDC, "\\"},  {44, 'Z', "Z"},     {45, 'X', "X"},  {46, 'C', "C"},  {47, 'V', "V"},  {48, 'B', "B"},
    {49, 'N', "N"},    {50, 'M', "M"},     {51, 0xBC, ","}, {52, 0xBE, "."}, {53, 0xBF, "/"}, {86, 0xE2, "<"},
    {115, 0xC1, "Ro"}, {125, None, "Yen"},
};

constexpr Row NamedKeys[] = {
    {1, 0x1B, "Esc"},
    {14, 0x08, "Backspace"},
    {15, 0x09, "Tab"},
    {28, 0x0D, "Enter"},
    {29, 0xA2, "Ctrl"},
    {42, 0xA0, "Shift"},
    {54, 0xA1, "Right Shift"},
    {55, 0x6A, "Num *"},
    {56, 0xA4, "Alt"},
    {57, 0x20, "Space"},
    {58, 0x14, "Caps Lock"},
    {59, 0x70, "F1"},
    {60, 0x71, "F2"},
    {61, 0x72, "F3"},
    {62, 0x73, "F4"},
    {63, 0x74, "F5"},
    {64, 0x75, "F6"},
    {65, 0x76, "F7"},
    {66, 0x77, "F8"},
    {67, 0x78, "F9"},
    {68, 0x79, "F10"},
    {69, 0x13, "Pause"},
    {70, 0x91, "Scroll Lock"},
    {71, 0x67, "Num 7"},
    {72, 0x68, "Num 8"},
    {73, 0x69, "Num 9"},
    {74, 0x6D, "Num -"},
    {75, 0x64, "Num 4"},
    {76, 0x65, "Num 5"},
    {77, 0x66, "Num 6"},
    {78, 0x6B, "Num +"},
    {79, 0x61, "Num 1"},
    {80, 0x62, "Num 2"},
    {81, 0x63, "Num 3"},
    {82, 0x60, "Num 0"},
    {83, 0x6E, "Num Del"},
    {87, 0x7A, "F11"},
    {88, 0x7B, "F12"},
    {89, 0x92, "Num ="},
    {92, None, "Num , (Japanese)"},
    {100, 0x7C, "F13"},
    {101, 0x7D, "F14"},
    {102, 0x7E, "F15"},
    {103, 0x7F, "F16"},
    {104, 0x80, "F17"},
    {105, 0x81, "F18"},
    {106, 0x82, "F19"},
    {107, 0x83, "F20"},
    {108, 0x84, "F21"},
    {109, 0x85, "F22"},
    {110, 0x86, "F23"},
    {112, 0x15, "Kana"},
    {113, 0x19, "Hanja"},
    {114, None, "Hangul"},
    {118, 0x87, "F24"},
    {119, None, "Hiragana"},
    {120, None, "Katakana"},
    {121, 0x1C, "Henkan"},
    {123, 0x1D, "Muhenkan"},
    {126, 0xC2, "Num ,"},
    {Extended + 16, 0xB1, "Previous Track"},
    {Extended + 25, 0xB0, "Next Track"},
    {Extended + 28, None, "Num Enter"},
    {Extended + 29, 0xA3, "Right Ctrl"},
    {Extended + 32, 0xAD, "Mute"},
    {Extended + 33, 0xB7, "Calculator"},
    {Extended + 34, 0xB3, "Play/Pause"},
    {Extended + 36, 0xB2, "Media Stop"},
    {Extended + 46, 0xAE, "Volume Down"},
    {Extended + 48, 0xAF, "Volume Up"},
    {Extended + 50, 0xAC, "Browser Home"},
    {Extended + 53, 0x6F, "Num /"},
    {Extended + 55, 0x2C, "Print Screen"},
    {Extended + 56, 0xA5, "Right Alt"},
    {Extended + 69, 0x90, "Num Lock"},
    {Extended + 71, 0x24, "Home"},
    {Extended + 72, 0x26, "Up"},
    {Extended + 73, 0x21, "Page Up"},
    {Extended + 75, 0x25, "Left"},
    {Extended + 77, 0x27, "Right"},
    {Extended + 79, 0x23, "End"},
    {Extended + 80, 0x28, "Down"},
    {Extended + 81, 0x22, "Page Down"},
    {Extended + 82, 0x2D, "Insert"},
    {Extended + 83, 0x2E, "Delete"},
    {Extended + 91, 0x5B, "Left Windows"},
    {Extended + 92, 0x5C, "Right Windows"},
    {Extended + 93, 0x5D, "Menu"},
    {Extended + 94, None, "Power"},
    {Extended + 95, 0x5F, "Sleep"},
    {Extended + 99, None, "Wake Up"},
    {Extended + 101, 0xAA, "Browser Search"},
    {Extended + 102, 0xAB, "Browser Favorites"},
    {Extended + 103, 0xA8, "Browser Refresh"},
    {Extended + 104, 0xA9, "Browser Stop"},
    {Extended + 105, 0xA7, "Browser Forward"},
    {Extended + 106, 0xA6, "Browser Back"},
    {Extended + 107, 0xB6, "My Computer"},
    {Extended + 108, 0xB4, "Mail"},
    {Extended + 109, 0xB5, "Media"},
};

struct Tables {
    std::array<KeyDescription, KeyCodes> Description{};
    std::array<Long, KeyCodes> VirtualKey{};
    std::array<Long, 256> Code{};
};

constexpr Tables AllKeys = [] {
    Tables tables;
    tables.Code.fill(-1);
    for (Long code = 0; code < KeyCodes; ++code)
        tables.VirtualKey[static_cast<std::size_t>(code)] = PrivateVirtualKeys + code;

    const auto enter = [&tables](const Row& row, bool isCharacter) {
        tables.Description[static_cast<std::size_t>(row.Code)] = {row.Name, isCharacter};
        if (row.VirtualKey == None) return;
        tables.VirtualKey[static_cast<std::size_t>(row.Code)] = row.VirtualKey;
        tables.Code[static_cast<std::size_t>(row.VirtualKey)] = row.Code;
    };
    for (const Row& row : CharacterKeys) enter(row, true);
    for (const Row& row : NamedKeys) enter(row, false);
    return tables;
}();

}  // namespace

KeyDescription DescribeKey(Long code) { return AllKeys.Description[static_cast<std::size_t>(code)]; }

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
