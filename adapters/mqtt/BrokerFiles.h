// What a mosquitto of a set-up reads: its configuration, the keys by computer and the access list, written into one
// folder as docs/protocol.md tells them. Each is its user's alone.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "adapters/mqtt/JoinCode.h"

namespace orvelle::mqtt {

// "" for success, else a sentence. Files that say the same already are not written again.
std::string WriteBrokerFiles(const std::filesystem::path& folder, int port, const std::map<int, Key>& keys);

}  // namespace orvelle::mqtt
