// The keys that the toolkit tells, by the names that the simulator's computer tells them by
// (adapters/shared/KeyNames.h). A letter is named as the layout has it, in upper case; every other key by its place, so
// that Shift never renames a key between its press and its release. Where the system tells no place, the toolkit's own
// key number decides.
#pragma once

#include <string>

class QKeyEvent;

namespace orvelle::deck {

// "" for a key without a name.
std::string KeyNameOf(const QKeyEvent& event);

}  // namespace orvelle::deck
