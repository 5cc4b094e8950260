// A port of this computer that nobody has now, for a server that a story or a test starts: for TCP and UDP at every
// address, and none of those that this system gives to whoever connects somewhere, so that it stays free while the
// server is away.
#pragma once

#include <cstdint>

namespace orvelle {

std::uint16_t FreePort();  // 0 if there is none
// By TCP, at whichever address; whoever listens does not notice the question.
bool IsListenedTo(std::uint16_t port);

}  // namespace orvelle
