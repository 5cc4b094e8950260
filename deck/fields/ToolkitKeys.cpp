#include "deck/fields/ToolkitKeys.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

#include "adapters/looks/Text.h"
#include "adapters/shared/KeyNames.h"
#include "adapters/shared/ScanCodes.h"

namespace orvelle::deck {

namespace {

struct Row {
    Long Code;
    int Key;
};

constexpr Row ToolkitKeys[] = {
    {1, Qt::Key_Escape},
    {2, Qt::Key_1},
    {3, Qt::Key_2},
    {4, Qt::Key_3},
    {5, Qt::Key_4},
    {6, Qt::Key_5},
    {7, Qt::Key_6},
    {8, Qt::Key_7},
    {9, Qt::Key_8},
    {10, Qt::Key_9},
    {11, Qt::Key_0},
    {12, Qt::Key_Minus},
    {13, Qt::Key_Equal},
    {14, Qt::Key_Backspace},
    {15, Qt::Key_Tab},
    {26, Qt::Key_BracketLeft},
    {27, Qt::Key_BracketRight},
    {28, Qt::Key_Return},
    {29, Qt::Key_Control},
    {39, Qt::Key_Semicolon},
    {40, Qt::Key_Apostrophe},
    {41, Qt::Key_QuoteLeft},
    {42, Qt::Key_Shift},
    {43, Qt::Key_Backslash},
    {51, Qt::Key_Comma},
    {52, Qt::Key_Period},
    {53, Qt::Key_Slash},
    {56, Qt::Key_Alt},
    {57, Qt::Key_Space},
    {58, Qt::Key_CapsLock},
    {59, Qt::Key_F1},
    {60, Qt::Key_F2},
    {61, Qt::Key_F3},
    {62, Qt::Key_F4},
    {63, Qt::Key_F5},
    {64, Qt::Key_F6},
    {65, Qt::Key_F7},
    {66, Qt::Key_F8},
    {67, Qt::Key_F9},
    {68, Qt::Key_F10},
    {69, Qt::Key_Pause},
    {70, Qt::Key_ScrollLock},
    {87, Qt::Key_F11},
    {88, Qt::Key_F12},
    {100, Qt::Key_F13},
    {101, Qt::Key_F14},
    {102, Qt::Key_F15},
    {103, Qt::Key_F16},
    {104, Qt::Key_F17},
    {105, Qt::Key_F18},
    {106, Qt::Key_F19},
    {107, Qt::Key_F20},
    {108, Qt::Key_F21},
    {109, Qt::Key_F22},
    {110, Qt::Key_F23},
    {118, Qt::Key_F24},
    {28 + ExtendedKey, Qt::Key_Enter},
    {55 + ExtendedKey, Qt::Key_Print},
    {56 + ExtendedKey, Qt::Key_AltGr},
    {69 + ExtendedKey, Qt::Key_NumLock},
    {71 + ExtendedKey, Qt::Key_Home},
    {72 + ExtendedKey, Qt::Key_Up},
    {73 + ExtendedKey, Qt::Key_PageUp},
    {75 + ExtendedKey, Qt::Key_Left},
    {77 + ExtendedKey, Qt::Key_Right},
    {79 + ExtendedKey, Qt::Key_End},
    {80 + ExtendedKey, Qt::Key_Down},
    {81 + ExtendedKey, Qt::Key_PageDown},
    {82 + ExtendedKey, Qt::Key_Insert},
    {83 + ExtendedKey, Qt::Key_Delete},
    {91 + ExtendedKey, Qt::Key_Super_L},
    {92 + ExtendedKey, Qt::Key_Super_R},
    {93 + ExtendedKey, Qt::Key_Menu},
};

// Keys that the toolkit does not tell from another one: the right ones of Shift and Ctrl, the keypad's, and the one
// between Shift and Z.
constexpr Long ToldByPlaceAlone[] = {
    54, 55, 71, 72, 73, 74, 75, 76, 77, 78, 79, 80, 81, 82, 83, 86, 29 + ExtendedKey, 53 + ExtendedKey};

// The shared table names more: a letter, which is never named by its place here, and keys that have no name here, those
// of Japanese and Korean keyboards, of browsers and of players, and the rarer ones of the keypad.
bool IsNamedByPlace(Long code) {
    return std::ranges::find(ToolkitKeys, code, &Row::Code) != std::end(ToolkitKeys) ||
           std::ranges::find(ToldByPlaceAlone, code) != std::end(ToldByPlaceAlone);
}

// 0 for a key that is none of the table.
Long CodeOfToolkitKey(int key) {
    const auto* row = std::ranges::find(ToolkitKeys, key, &Row::Key);
    return row != std::end(ToolkitKeys) ? row->Code : 0;
}

// The toolkit numbers a key that types something by its character, in upper case, all others far above.
std::string LetterOf(int key) {
    if (key <= 0 || key >= Qt::Key_Escape) return "";
    const QString letter = QString::fromUcs4(reinterpret_cast<const char32_t*>(&key), 1);
    return letter.at(0).isLetter() || letter.at(0).isSurrogate() ? FromQt(letter) : "";
}

}  // namespace

std::string KeyNameOf(const QKeyEvent& event) {
    const int key = event.key();
    if (std::string letter = LetterOf(key); !letter.empty()) return letter;
    const Long place = ScanCodeOfLinuxKey(static_cast<Long>(event.nativeScanCode()) - XKeyCodeOffset);
    return std::string(DescribeKey(IsNamedByPlace(place) ? place : CodeOfToolkitKey(key)).Name);
}

}  // namespace orvelle::deck
