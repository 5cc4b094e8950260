// Sequences of keys on this computer, sent and named.
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

}  // namespace orvelle
