#include "adapters/shared/KeyNames.h"

#include <array>

#include "adapters/shared/ScanCodes.h"

namespace orvelle {

namespace {

constexpr Long Extended = ExtendedKey;

struct Row {
    Long Code;
    std::string_view Name;
};

// Keys whose name is the character that the layout gives them.
constexpr Row CharacterKeys[] = {
    {2, "1"},  {3, "2"},  {4, "3"},  {5, "4"},  {6, "5"},  {7, "6"},  {8, "7"},   {9, "8"},  {10, "9"},   {11, "0"},
    {12, "-"}, {13, "="}, {16, "Q"}, {17, "W"}, {18, "E"}, {19, "R"}, {20, "T"},  {21, "Y"}, {22, "U"},   {23, "I"},
    {24, "O"}, {25, "P"}, {26, "["}, {27, "]"}, {30, "A"}, {31, "S"}, {32, "D"},  {33, "F"}, {34, "G"},   {35, "H"},
    {36, "J"}, {37, "K"}, {38, "L"}, {39, ";"}, {40, "'"}, {41, "`"}, {43, "\\"}, {44, "Z"}, {45, "X"},   {46, "C"},
    {47, "V"}, {48, "B"}, {49, "N"}, {50, "M"}, {51, ","}, {52, "."}, {53, "/"},  {86, "<"}, {115, "Ro"}, {125, "Yen"},
};

constexpr Row NamedKeys[] = {
    {1, "Esc"},
    {14, "Backspace"},
    {15, "Tab"},
    {28, "Enter"},
    {29, "Ctrl"},
    {42, "Shift"},
    {54, "Right Shift"},
    {55, "Num *"},
    {56, "Alt"},
    {57, "Space"},
    {58, "Caps Lock"},
    {59, "F1"},
    {60, "F2"},
    {61, "F3"},
    {62, "F4"},
    {63, "F5"},
    {64, "F6"},
    {65, "F7"},
    {66, "F8"},
    {67, "F9"},
    {68, "F10"},
    {69, "Pause"},
    {70, "Scroll Lock"},
    {71, "Num 7"},
    {72, "Num 8"},
    {73, "Num 9"},
    {74, "Num -"},
    {75, "Num 4"},
    {76, "Num 5"},
    {77, "Num 6"},
    {78, "Num +"},
    {79, "Num 1"},
    {80, "Num 2"},
    {81, "Num 3"},
    {82, "Num 0"},
    {83, "Num Del"},
    {87, "F11"},
    {88, "F12"},
    {89, "Num ="},
    {92, "Num , (Japanese)"},
    {100, "F13"},
    {101, "F14"},
    {102, "F15"},
    {103, "F16"},
    {104, "F17"},
    {105, "F18"},
    {106, "F19"},
    {107, "F20"},
    {108, "F21"},
    {109, "F22"},
    {110, "F23"},
    {112, "Kana"},
    {113, "Hanja"},
    {114, "Hangul"},
    {118, "F24"},
    {119, "Hiragana"},
    {120, "Katakana"},
    {121, "Henkan"},
    {123, "Muhenkan"},
    {126, "Num ,"},
    {Extended + 16, "Previous Track"},
    {Extended + 25, "Next Track"},
    {Extended + 28, "Num Enter"},
    {Extended + 29, "Right Ctrl"},
    {Extended + 32, "Mute"},
    {Extended + 33, "Calculator"},
    {Extended + 34, "Play/Pause"},
    {Extended + 36, "Media Stop"},
    {Extended + 46, "Volume Down"},
    {Extended + 48, "Volume Up"},
    {Extended + 50, "Browser Home"},
    {Extended + 53, "Num /"},
    {Extended + 55, "Print Screen"},
    {Extended + 56, "Right Alt"},
    {Extended + 69, "Num Lock"},
    {Extended + 71, "Home"},
    {Extended + 72, "Up"},
    {Extended + 73, "Page Up"},
    {Extended + 75, "Left"},
    {Extended + 77, "Right"},
    {Extended + 79, "End"},
    {Extended + 80, "Down"},
    {Extended + 81, "Page Down"},
    {Extended + 82, "Insert"},
    {Extended + 83, "Delete"},
    {Extended + 91, "Left Windows"},
    {Extended + 92, "Right Windows"},
    {Extended + 93, "Menu"},
    {Extended + 94, "Power"},
    {Extended + 95, "Sleep"},
    {Extended + 99, "Wake Up"},
    {Extended + 101, "Browser Search"},
    {Extended + 102, "Browser Favorites"},
    {Extended + 103, "Browser Refresh"},
    {Extended + 104, "Browser Stop"},
    {Extended + 105, "Browser Forward"},
    {Extended + 106, "Browser Back"},
    {Extended + 107, "My Computer"},
    {Extended + 108, "Mail"},
    {Extended + 109, "Media"},
};

constexpr auto Descriptions = [] {
    std::array<KeyDescription, KeyCodes> descriptions{};
    const auto at = [&descriptions](const Row& row) -> KeyDescription& {
        return descriptions[static_cast<std::size_t>(row.Code)];
    };
    for (const Row& row : CharacterKeys) at(row) = {row.Name, true};
    for (const Row& row : NamedKeys) at(row) = {row.Name, false};
    return descriptions;
}();

}  // namespace

KeyDescription DescribeKey(Long code) {
    return code < 0 || code >= KeyCodes ? KeyDescription{} : Descriptions[static_cast<std::size_t>(code)];
}

}  // namespace orvelle
