#include "adapters/shared/HostLookup.h"

#include <netdb.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/ServerNames.h"

namespace orvelle {

namespace {

// None where the resolver finds nothing.
std::vector<std::string> Resolve(const std::string& host, int flags) {
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    wanted.ai_flags = flags;
    addrinfo* found = nullptr;
    if (getaddrinfo(host.c_str(), nullptr, &wanted, &found) != 0) return {};
    std::vector<std::string> addresses;
    for (const addrinfo* each = found; each != nullptr; each = each->ai_next) {
        std::array<char, NI_MAXHOST> text{};
        if (getnameinfo(each->ai_addr, each->ai_addrlen, text.data(), text.size(), nullptr, 0, NI_NUMERICHOST) == 0 &&
            std::ranges::find(addresses, text.data()) == addresses.end())
            addresses.emplace_back(text.data());
    }
    freeaddrinfo(found);
    return addresses;
}

std::vector<std::string> AddressesOf(const std::string& host) {
    // An address is taken at its word: asked for as a name it is refused where no network of its family is up, and
    // loopback counts as none.
    std::vector<std::string> addresses = Resolve(host, AI_NUMERICHOST);
    if (addresses.empty()) addresses = Resolve(host, AI_ADDRCONFIG);
    // This computer is found also where no file of hosts says so.
    if (addresses.empty() && host == LocalHost) addresses = {LoopbackAddress};
    return addresses;
}

}  // namespace

HostLookup::HostLookup(EventLoop& loop, const std::string& host, Answer answer)
    : work(
          loop, [kept = found, host] { *kept = AddressesOf(host); },
          [kept = found, call = std::move(answer)] { call(*kept); }) {}

}  // namespace orvelle
