// Where a broker is, as a user types it and as it is shown: "simpc", "simpc:8884", "192.0.2.7:8884",
// "[2001:db8::7]:8884".
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/mqtt/SetUpFile.h"

namespace orvelle::mqtt {

struct HostAndPort {
    std::string Host;  // as SetUpSetting takes it
    int Port = UsualPort;
    auto operator<=>(const HostAndPort&) const = default;
};

// Blanks around it are left out; an address of version 6 may stand without brackets if no port follows. Nothing for a
// text that is none.
std::optional<HostAndPort> ReadHostAndPort(std::string_view text);
// Without the port where that is the usual one.
std::string WriteHostAndPort(const HostAndPort& place);
// As places are compared: case means nothing in the name of a host.
HostAndPort InLowerCase(HostAndPort place);

}  // namespace orvelle::mqtt
