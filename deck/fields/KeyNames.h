// The names of keys as the simulator's computer tells them: "A", "F8", "Ctrl", "Right Alt", "Num 5". A letter is named
// as the layout has it, in upper case; every other key by its place, as on a US keyboard, so that Shift never renames
// a key between its press and its release. Where the system tells no place, the toolkit's own key number decides.
#pragma once

#include <string>

class QKeyEvent;

namespace orvelle::deck {

// "" for a key without a name.
std::string KeyNameOf(const QKeyEvent& event);

}  // namespace orvelle::deck
