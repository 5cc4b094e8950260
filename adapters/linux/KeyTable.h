// What the keys of a common keyboard are called and which virtual key they are, by key code (platform/ScanCodes.h).
//
// A virtual key has the Windows desktop's number where it gives the key one of its own: 0xA2 left Ctrl, 0xA3 right
// Ctrl, 0x25 arrow left, 0x64 keypad 4. Every other code, with a key or without, has the number 0x1000 + code. So each
// of the 512 codes has a virtual key that no other has, which is all that tells left Ctrl from right Ctrl once a stroke
// is on its way.
#pragma once

#include <string_view>

#include "platform/Types.h"

namespace orvelle::linux {

constexpr Long PrivateVirtualKeys = 0x1000;

struct KeyDescription {
    std::string_view Name;  // "" for a code without a key; of a character key, its name on a US keyboard
    bool IsCharacter;       // the current layout decides what it is called
};

// `code` is 0 to 511 in both.
KeyDescription DescribeKey(Long code);
Long VirtualKeyOfCode(Long code);
// -1 for a number that is no virtual key of any code.
Long CodeOfVirtualKey(Long virtualKey);

}  // namespace orvelle::linux
