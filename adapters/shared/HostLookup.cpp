#include "adapters/shared/HostLookup.h"

#include <netdb.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <system_error>
#include <thread>
#include <utility>

#include "adapters/shared/FileDescriptor.h"
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

// What asker and thread share. The thread writes the addresses, then the event; the asker reads them after it.
struct HostLookup::Asked {
    const FileDescriptor Event{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    std::vector<std::string> Addresses;
};

HostLookup::HostLookup(EventLoop& loop, const std::string& host, Answer whenKnown)
    : answer(std::move(whenKnown)), asked(std::make_shared<Asked>()) {
    if (!asked->Event) {
        ready = loop.After(0, [this] { Take(); });
        return;
    }
    ready = loop.WhenReadable(asked->Event.Number(), [this] { Take(); });
    const auto work = [shared = asked, host] {
        shared->Addresses = AddressesOf(host);
        const std::uint64_t one = 1;
        [[maybe_unused]] const auto written = write(shared->Event.Number(), &one, sizeof one);
    };
    try {
        std::thread(work).detach();
    } catch (const std::system_error&) {
        ready = loop.After(0, [this] { Take(); });  // no thread can be had now: no addresses
    }
}

HostLookup::~HostLookup() = default;

void HostLookup::Take() {
    ready.End();
    // The answer may end this object.
    const Answer call = std::move(answer);
    const std::vector<std::string> addresses = std::move(asked->Addresses);
    call(addresses);
}

}  // namespace orvelle
