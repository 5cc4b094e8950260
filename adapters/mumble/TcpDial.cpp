#include "adapters/mumble/TcpDial.h"

#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace orvelle::mumble {

namespace {

constexpr Long OneOfManyMilliseconds = 1000;  // for an address that others follow
constexpr Long LastMilliseconds = 4000;

struct FreeAddress {
    void operator()(addrinfo* gone) const { freeaddrinfo(gone); }
};
using Address = std::unique_ptr<addrinfo, FreeAddress>;

Address ReadAddress(const std::string& numeric, int port) {
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    wanted.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    addrinfo* found = nullptr;
    if (getaddrinfo(numeric.c_str(), std::to_string(port).c_str(), &wanted, &found) != 0) return nullptr;
    return Address(found);
}

}  // namespace

TcpDial::TcpDial(EventLoop& usedLoop, const HostAndPort& place, Answer whenKnown)
    : loop(usedLoop), port(place.Port), answer(std::move(whenKnown)) {
    lookup = std::make_unique<HostLookup>(loop, place.Host, [this](const std::vector<std::string>& found) {
        addresses = found;
        std::ranges::reverse(addresses);
        TryNext();
    });
}

void TcpDial::TryNext() {
    connected.End();
    patience.End();
    socket.Close();
    if (addresses.empty()) return Tell(reason);
    const Address address = ReadAddress(addresses.back(), port);
    addresses.pop_back();
    if (!address) return Fail(ConnectionEnd::NoSuchHost);
    socket = FileDescriptor(::socket(address->ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    const int yes = 1;
    setsockopt(socket.Number(), IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
    if (!socket || (connect(socket.Number(), address->ai_addr, address->ai_addrlen) != 0 && errno != EINPROGRESS))
        return Fail(errno == ECONNREFUSED ? ConnectionEnd::Refused : ConnectionEnd::Unreachable);
    connected = loop.WhenWritable(socket.Number(), [this] { Look(); });
    patience = loop.After(addresses.empty() ? LastMilliseconds : OneOfManyMilliseconds,
                          [this] { Fail(ConnectionEnd::Unreachable); });
}

void TcpDial::Look() {
    int error = 0;
    socklen_t size = sizeof error;
    getsockopt(socket.Number(), SOL_SOCKET, SO_ERROR, &error, &size);
    if (error != 0) return Fail(error == ECONNREFUSED ? ConnectionEnd::Refused : ConnectionEnd::Unreachable);
    connected.End();
    patience.End();
    Tell(ConnectionEnd::Closed);  // not yet
}

// Where one address refuses and others can't be reached, the refusal tells more.
void TcpDial::Fail(ConnectionEnd why) {
    if (reason != ConnectionEnd::Refused) reason = why;
    failed = loop.After(0, [this] { TryNext(); });
    connected.End();
    patience.End();
}

void TcpDial::Tell(ConnectionEnd why) {
    const Answer call = std::move(answer);  // which may end this
    call(std::move(socket), why);
}

}  // namespace orvelle::mumble
