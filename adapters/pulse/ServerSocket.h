// The file by which the user's sound server is reached, so that its coming can be watched for. Asked by whoever
// watches.
#pragma once

#include <filesystem>
#include <string>

namespace orvelle::pulse {

// `server` as the library takes it; "" is the user's own: what the environment names, or the one of the session. Empty
// where the server is on another computer, or where this can't be known.
std::filesystem::path ServerSocket(const std::string& server);

}  // namespace orvelle::pulse
