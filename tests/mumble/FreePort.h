// A port of loopback that nobody has now, for a test's server: for TCP and UDP, and none of those that this system
// gives to whoever connects somewhere, so that it stays free while the server is away.
#pragma once

#include <cstdint>

namespace orvelle::mumble {

std::uint16_t FreePort();  // 0 if there is none
bool IsListenedTo(std::uint16_t port);

}  // namespace orvelle::mumble
