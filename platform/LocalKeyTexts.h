// What the field of a key of this computer shows where there is no key. The logic writes them, and the shell knows by
// them that a key is missing.
#pragma once

namespace orvelle {

constexpr const char* LocalKeyNotSet = "<Not Hotkey>";
constexpr const char* LocalKeyCleared = "<No Hotkey>";
constexpr const char* LocalKeyPrompt = "<Press a key on current PC>";  // stays if none is pressed

}  // namespace orvelle
