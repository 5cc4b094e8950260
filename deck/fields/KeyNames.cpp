#include "deck/fields/KeyNames.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

#include "adapters/shared/ScanCodes.h"

namespace orvelle::deck {

namespace {

constexpr int NoKey = 0;  // the toolkit doesn't tell this key from another one

struct Row {
    Long Code;
    int Key;
    const char* Name;
};

constexpr Row Keys[] = {
    {1, Qt::Key_Escape, "Esc"},
    {2, Qt::Key_1, "1"},
    {3, Qt::Key_2, "2"},
    {4, Qt::Key_3, "3"},
    {5, Qt::Key_4, "4"},
    {6, Qt::Key_5, "5"},
    {7, Qt::Key_6, "6"},
    {8, Qt::Key_7, "7"},
    {9, Qt::Key_8, "8"},
    {10, Qt::Key_9, "9"},
    {11, Qt::Key_0, "0"},
    {12, Qt::Key_Minus, "-"},
    {13, Qt::Key_Equal, "="},
    {14, Qt::Key_Backspace, "Backspace"},
    {15, Qt::Key_Tab, "Tab"},
    {26, Qt::Key_BracketLeft, "["},
    {27, Qt::Key_BracketRight, "]"},
    {28, Qt::Key_Return, "Enter"},
    {29, Qt::Key_Control, "Ctrl"},
    {39, Qt::Key_Semicolon, ";"},
    {40, Qt::Key_Apostrophe, "'"},
    {41, Qt::Key_QuoteLeft, "`"},
    {42, Qt::Key_Shift, "Shift"},
    {43, Qt::Key_Backslash, "\\"},
    {51, Qt::Key_Comma, ","},
    {52, Qt::Key_Period, "."},
    {53, Qt::Key_Slash, "/"},
    {54, NoKey, "Right Shift"},
    {55, NoKey, "Num *"},
    {56, Qt::Key_Alt, "Alt"},
    {57, Qt::Key_Space, "Space"},
    {58, Qt::Key_CapsLock, "Caps Lock"},
    {59, Qt::Key_F1, "F1"},
    {60, Qt::Key_F2, "F2"},
    {61, Qt::Key_F3, "F3"},
    {62, Qt::Key_F4, "F4"},
    {63, Qt::Key_F5, "F5"},
    {64, Qt::Key_F6, "F6"},
    {65, Qt::Key_F7, "F7"},
    {66, Qt::Key_F8, "F8"},
    {67, Qt::Key_F9, "F9"},
    {68, Qt::Key_F10, "F10"},
    {69, Qt::Key_Pause, "Pause"},
    {70, Qt::Key_ScrollLock, "Scroll Lock"},
    {71, NoKey, "Num 7"},
    {72, NoKey, "Num 8"},
    {73, NoKey, "Num 9"},
    {74, NoKey, "Num -"},
    {75, NoKey, "Num 4"},
    {76, NoKey, "Num 5"},
    {77, NoKey, "Num 6"},
    {78, NoKey, "Num +"},
    {79, NoKey, "Num 1"},
    {80, NoKey, "Num 2"},
    {81, NoKey, "Num 3"},
    {82, NoKey, "Num 0"},
    {83, NoKey, "Num Del"},
    {86, NoKey, "<"},
    {87, Qt::Key_F11, "F11"},
    {88, Qt::Key_F12, "F12"},
    {100, Qt::Key_F13, "F13"},
    {101, Qt::Key_F14, "F14"},
    {102, Qt::Key_F15, "F15"},
    {103, Qt::Key_F16, "F16"},
    {104, Qt::Key_F17, "F17"},
    {105, Qt::Key_F18, "F18"},
    {106, Qt::Key_F19, "F19"},
    {107, Qt::Key_F20, "F20"},
    {108, Qt::Key_F21, "F21"},
    {109, Qt::Key_F22, "F22"},
    {110, Qt::Key_F23, "F23"},
    {118, Qt::Key_F24, "F24"},
    {28 + ExtendedKey, Qt::Key_Enter, "Num Enter"},
    {29 + ExtendedKey, NoKey, "Right Ctrl"},
    {53 + ExtendedKey, NoKey, "Num /"},
    {55 + ExtendedKey, Qt::Key_Print, "Print Screen"},
    {56 + ExtendedKey, Qt::Key_AltGr, "Right Alt"},
    {69 + ExtendedKey, Qt::Key_NumLock, "Num Lock"},
    {71 + ExtendedKey, Qt::Key_Home, "Home"},
    {72 + ExtendedKey, Qt::Key_Up, "Up"},
    {73 + ExtendedKey, Qt::Key_PageUp, "Page Up"},
    {75 + ExtendedKey, Qt::Key_Left, "Left"},
    {77 + ExtendedKey, Qt::Key_Right, "Right"},
    {79 + ExtendedKey, Qt::Key_End, "End"},
    {80 + ExtendedKey, Qt::Key_Down, "Down"},
    {81 + ExtendedKey, Qt::Key_PageDown, "Page Down"},
    {82 + ExtendedKey, Qt::Key_Insert, "Insert"},
    {83 + ExtendedKey, Qt::Key_Delete, "Delete"},
    {91 + ExtendedKey, Qt::Key_Super_L, "Left Windows"},
    {92 + ExtendedKey, Qt::Key_Super_R, "Right Windows"},
    {93 + ExtendedKey, Qt::Key_Menu, "Menu"},
};

template <typename Match>
std::string NameWhere(Match match) {
    const auto* row = std::find_if(std::begin(Keys), std::end(Keys), match);
    return row != std::end(Keys) ? row->Name : "";
}

// The toolkit numbers a key that types something by its character, in upper case, all others far above.
std::string LetterOf(int key) {
    if (key <= 0 || key >= Qt::Key_Escape) return "";
    const QString letter = QString::fromUcs4(reinterpret_cast<const char32_t*>(&key), 1);
    return letter.at(0).isLetter() || letter.at(0).isSurrogate() ? letter.toStdString() : "";
}

}  // namespace

std::string KeyNameOf(const QKeyEvent& event) {
    const int key = event.key();
    std::string name = LetterOf(key);
    if (!name.empty()) return name;

    const auto place = static_cast<Long>(event.nativeScanCode());
    if (const Long code = ScanCodeOfLinuxKey(place - XKeyCodeOffset); code != 0)
        name = NameWhere([code](const Row& row) { return row.Code == code; });
    if (name.empty() && key != NoKey) name = NameWhere([key](const Row& row) { return row.Key == key; });
    return name;
}

}  // namespace orvelle::deck
