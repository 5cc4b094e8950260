// The names with a meaning of their own that a link takes or tells as its server; any other is a host or an address.
#pragma once

namespace orvelle {

constexpr const char* AutomaticServer = "AUTOMATIC";  // whichever server is found
constexpr const char* OwnServer = "<LOCAL>";          // the one inside this computer; framework link alone
constexpr const char* LocalHost = "localhost";
constexpr const char* LoopbackAddress = "127.0.0.1";

}  // namespace orvelle
