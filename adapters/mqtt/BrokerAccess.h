// Where a set-up's broker is and by what it knows one of its computers.
#pragma once

#include <string>

namespace orvelle::mqtt {

struct BrokerAccess {
    std::string Host;      // a host name or an address
    int Port = 8883;       // 1 to 65535
    std::string Identity;  // "c01" to "c99"
    std::string Key;       // hexadecimal
    bool operator==(const BrokerAccess&) const = default;
};

}  // namespace orvelle::mqtt
