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

    // Synthesises one key event, by its virtual key; `flags` are a sum of the constants above, and `extra` is not used.
    // A key that does not exist does nothing.
    virtual void keybd_event(Long virtualKey, Long scanByte, Long flags, Long extra) = 0;
    // The virtual key of a key code, 0 where it has none.
    virtual Long MapVirtualKeyA(Long code, Long mapType) = 0;
    // The key's name, or a stand-in where it has none; `keyMessage` is the key code shifted left by 16 bits. What does
    // not fit into `size`, with its closing zero, is cut.
    virtual std::string GetKeyNameTextA(Long keyMessage, Long size) = 0;
};

}  // namespace orvelle
