// Which virtual key a key is, by key code (adapters/shared/ScanCodes.h).
//
// A virtual key has the Windows desktop's number where it gives the key one of its own: 0xA2 left Ctrl, 0xA3 right
// Ctrl, 0x25 arrow left, 0x64 keypad 4. Every other code, with a key or without, has the number 0x1000 + code. So each
// of the 512 codes has a virtual key that no other has, which is all that tells left Ctrl from right Ctrl once a stroke
// is on its way.
#pragma once

#include "platform/Types.h"

namespace orvelle::linux {

constexpr Long PrivateVirtualKeys = 0x1000;

// `code` is 0 to 511.
Long VirtualKeyOfCode(Long code);
// -1 for a number that is no virtual key of any code.
Long CodeOfVirtualKey(Long virtualKey);

}  // namespace orvelle::linux
