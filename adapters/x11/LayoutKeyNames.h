// What a key of this computer is called on the simulator's side of a link: a letter as the current layout has it, in
// upper case, every other key by its place (adapters/shared/KeyNames.h), so that Shift never renames a key and the
// names are those of other keyboards of the set-up. Called by whoever reads an X server's keys.
#pragma once

#include <string>

#include "adapters/x11/KeyLayout.h"

namespace orvelle {

// By the X server's key code; "" for a key that has neither a letter nor a named place.
std::string NameOfKey(KeyLayout& layout, int keyCode);

}  // namespace orvelle
