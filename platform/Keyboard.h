// Key strokes on this computer. A key code is a set 1 scan code, plus 256 for an extended key: 0 to 511. The adapter
// keeps the set of keys that it holds down and lets them go when the program ends in any way.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

constexpr Long KeyEventExtended = 1;
constexpr Long KeyEventUp = 2;
constexpr Long MapScanCodeToVirtualKeyExtended = 3;  // left and right told apart

class Keyboard {
public:
    virtual ~Keyboard() = default;

    // Synthesises one key event; a key that does not exist does nothing.
    virtual void keybd_event(Long virtualKey, Long scanByte, Long flags, Long extra) = 0;
    virtual Long MapVirtualKeyA(Long code, Long mapType) = 0;
    // The key's name; `keyMessage` is the key code shifted left by 16 bits. "" where it has none.
    virtual std::string GetKeyNameTextA(Long keyMessage, Long size) = 0;
};

}  // namespace orvelle
