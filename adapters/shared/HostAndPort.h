// Where a server is, as a user types it and as it is shown: "simpc", "simpc:8884", "192.0.2.7:8884",
// "[2001:db8::7]:8884". Each kind of server has its usual port.
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace orvelle {

struct HostAndPort {
    std::string Host;
    int Port = 0;
    auto operator<=>(const HostAndPort&) const = default;
};

// Whether a text can be the name or the address of a host: no blanks in it, and no longer than names get.
bool IsHost(std::string_view text);

// Blanks around it are left out; an address of version 6 may stand without brackets if no port follows. Nothing for a
// text that is none.
std::optional<HostAndPort> ReadHostAndPort(std::string_view text, int usualPort);
// Without the port where that is the usual one.
std::string WriteHostAndPort(const HostAndPort& place, int usualPort);
// As places are compared: case means nothing in the name of a host, which has no letters but ASCII's.
std::string HostInLowerCase(std::string host);
HostAndPort InLowerCase(HostAndPort place);

}  // namespace orvelle
