// Which process of this computer has a port of UDP, as the kernel tells it. For readers of simulators, which ask once
// for each new sender: an answer takes a look at all sockets, and at what this user's processes have open.
#pragma once

#include <sys/types.h>

#include <cstdint>

namespace orvelle::linux {

// The process whose socket is bound to that port, of loopback or of all addresses, by IPv4 or by an IPv6 socket that
// serves IPv4. Where several processes share the socket, the one with the lowest number, which mostly made it. 0 for
// none, and for a process that may not be looked into, as another user's.
pid_t ProcessOfPort(std::uint16_t port);

}  // namespace orvelle::linux
