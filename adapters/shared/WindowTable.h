// The procedures and user data of windows, for an adapter whose window system keeps none of its own. A window without
// a procedure of its own has the default one, which does nothing.
#pragma once

#include <cstdint>
#include <unordered_map>

#include "platform/Windows.h"

namespace orvelle {

class WindowTable {
public:
    std::intptr_t SetLong(Control& window, Long index, std::intptr_t value);
    std::intptr_t GetLong(Control& window, Long index) const;
    // Brings a message to a window's procedure, as the system does with what is in a window's queue.
    Long Deliver(Control& window, Long message, Long wParam, Long lParam) const;
    // Calls a procedure by its number; 0 does nothing.
    static Long Call(std::intptr_t procedure, Control& window, Long message, Long wParam, Long lParam);

private:
    struct Entry {
        std::intptr_t Procedure;
        std::intptr_t UserData = 0;
    };
    std::unordered_map<const Control*, Entry> entries;
};

}  // namespace orvelle
