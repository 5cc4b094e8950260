// Keys on this computer: sending a sequence, naming it, and the press-or-release logic of one table row.
#include "input/Matching.h"
#include "input/ScanCodes.h"
#include "panel/FrmOrvelle.h"
#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

constexpr Long NameBuffer = 255;
constexpr Long CodesPerByte = 256;
constexpr Long KeyMessageUnit = 65536;

// The key's code as the bits 16 to 24 of a key message.
Long KeyMessage(Long code) {
    const std::int64_t message = std::int64_t{code} * KeyMessageUnit;
    if (message != static_cast<Long>(message)) throw RuntimeError(RuntimeError::Overflow);
    return static_cast<Long>(message);
}

}  // namespace

// Left to right for a press and for a release alike, in one burst. Every code from 1 on counts as extended: the test
// is a real division.
void FrmOrvelle::SendKeyStrokes(bool release, const std::string& keys) {
    for (ScanCodeReader codes(keys); !codes.AtEnd();) {
        const Long code = codes.Next();
        const Long virtualKey = Keyboard.MapVirtualKeyA(code, MapScanCodeToVirtualKeyExtended);
        const Long flags = (code > 0 ? KeyEventExtended : 0) + (release ? KeyEventUp : 0);
        Keyboard.keybd_event(virtualKey, code % CodesPerByte, flags, 0);
    }
}

std::string FrmOrvelle::KeyDisplayName(const std::string& keys) {
    if (keys.empty()) return "";
    std::string name;
    for (ScanCodeReader codes(keys); !codes.AtEnd();) {
        const std::string key = Keyboard.GetKeyNameTextA(KeyMessage(codes.Next()), NameBuffer);
        if (!name.empty()) name += '+';
        name += key;
    }
    return name;
}

// A push row holds its keys while the input is down; a toggled row presses on one press and releases on the next.
void FrmOrvelle::ApplyKeyMapping(bool released, ListView& list, Long row) {
    const bool isToggle = list.SubItem(row, ToggleColumn) == "Toggle";
    const std::string& state = list.SubItem(row, KeyStateColumn);
    bool release = released;
    if (isToggle) {
        if (released || (!state.empty() && state != Down)) return;
        release = state == Down;
    } else if (released && state != Down) {
        return;
    }
    SendKeyStrokes(release, list.SubItem(row, KeyScanColumn));
    list.SetSubItem(row, KeyStateColumn, release ? "" : Down);
}

}  // namespace orvelle
