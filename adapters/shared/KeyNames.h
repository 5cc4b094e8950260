// What the keys of a common keyboard are called, by key code (ScanCodes.h): the names that the panel shows and stores,
// and that the simulator's computer tells. On a US keyboard each key has the name that stands here; elsewhere whoever
// knows the layout may name a character key by what it types.
#pragma once

#include <string_view>

#include "platform/Types.h"

namespace orvelle {

struct KeyDescription {
    std::string_view Name;     // "" for a code without a key
    bool IsCharacter = false;  // the current layout decides what it is called
};

// Nothing for a code that is out of range.
KeyDescription DescribeKey(Long code);

}  // namespace orvelle
