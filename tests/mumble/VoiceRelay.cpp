#include "tests/mumble/VoiceRelay.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <array>
#include <functional>

#include "apps/FreePort.h"

namespace orvelle::mumble {

namespace {

sockaddr_in Loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

FileDescriptor NewSocket(int kind) { return FileDescriptor(socket(AF_INET, kind | SOCK_CLOEXEC, 0)); }

FileDescriptor BoundTo(std::uint16_t port, int kind) {
    FileDescriptor bound = NewSocket(kind);
    const sockaddr_in address = Loopback(port);
    EXPECT_EQ(bind(bound.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    return bound;
}

FileDescriptor ConnectedTo(std::uint16_t port, int kind) {
    FileDescriptor connected = NewSocket(kind);
    const sockaddr_in address = Loopback(port);
    if (connect(connected.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
        connected.Close();
    return connected;
}

}  // namespace

// One TCP connection, with its two ends.
struct VoiceRelay::Stream {
    FileDescriptor Near;
    FileDescriptor Far;
    Ticket FromNear;
    Ticket FromFar;
};

// The packets of one client.
struct VoiceRelay::Flow {
    FileDescriptor Far;
    Ticket FromFar;
};

VoiceRelay::VoiceRelay(EventLoop& usedLoop, std::uint16_t server)
    : loop(usedLoop), serverPort(server), port(FreePort()) {
    listener = BoundTo(port, SOCK_STREAM);
    EXPECT_EQ(listen(listener.Number(), 8), 0);
    datagrams = BoundTo(port, SOCK_DGRAM);
    accepting = loop.WhenReadable(listener.Number(), [this] { Accept(); });
    taking = loop.WhenReadable(datagrams.Number(), [this] { TakeDatagram(); });
}

VoiceRelay::~VoiceRelay() = default;

void VoiceRelay::Cut() { streams.clear(); }

void VoiceRelay::Accept() {
    streams.push_back(std::make_unique<Stream>());
    Stream& stream = *streams.back();
    stream.Near = FileDescriptor(accept4(listener.Number(), nullptr, nullptr, SOCK_CLOEXEC));
    stream.Far = ConnectedTo(serverPort, SOCK_STREAM);
    const int yes = 1;
    for (const FileDescriptor* end : {&stream.Near, &stream.Far})
        setsockopt(end->Number(), IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
    const auto pass = [this, &stream](const FileDescriptor& from, const FileDescriptor& to) {
        std::array<char, 16 * 1024> bytes;
        const ssize_t count = recv(from.Number(), bytes.data(), bytes.size(), 0);
        if (count <= 0) return streams.remove_if([&stream](const auto& each) { return each.get() == &stream; }), void();
        Tunnelled += static_cast<unsigned long>(count);
        send(to.Number(), bytes.data(), static_cast<std::size_t>(count), MSG_NOSIGNAL);
    };
    stream.FromNear = loop.WhenReadable(stream.Near.Number(), [=, &stream] { pass(stream.Near, stream.Far); });
    stream.FromFar = loop.WhenReadable(stream.Far.Number(), [=, &stream] { pass(stream.Far, stream.Near); });
}

void VoiceRelay::TakeDatagram() {
    std::array<char, 2048> bytes;
    sockaddr_in client{};
    socklen_t size = sizeof client;
    const ssize_t count =
        recvfrom(datagrams.Number(), bytes.data(), bytes.size(), 0, reinterpret_cast<sockaddr*>(&client), &size);
    if (count <= 0) return;
    std::unique_ptr<Flow>& flow = flows[client.sin_port];
    if (!flow) {
        flow = std::make_unique<Flow>();
        flow->Far = ConnectedTo(serverPort, SOCK_DGRAM);
        flow->FromFar = loop.WhenReadable(flow->Far.Number(), [this, client, far = flow->Far.Number()] {
            Carry(far, [this, client](const std::string& packet) {
                sendto(datagrams.Number(), packet.data(), packet.size(), 0, reinterpret_cast<const sockaddr*>(&client),
                       sizeof client);
            });
        });
    }
    Pass({bytes.data(), static_cast<std::size_t>(count)}, [far = flow->Far.Number()](const std::string& packet) {
        send(far, packet.data(), packet.size(), MSG_NOSIGNAL);
    });
}

void VoiceRelay::Carry(int from, const Sending& sending) {
    std::array<char, 2048> bytes;
    const ssize_t count = recv(from, bytes.data(), bytes.size(), 0);
    if (count > 0) Pass({bytes.data(), static_cast<std::size_t>(count)}, sending);
}

void VoiceRelay::Pass(const std::string& packet, const Sending& sending) {
    if (IsBlocked || std::uniform_int_distribution<int>(0, 99)(chance) < LossPercent) {
        ++Lost;
        return;
    }
    ++Passed;
    if (MostDelay == 0) return sending(packet);
    const Long delay = std::uniform_int_distribution<Long>(0, MostDelay)(chance);
    delayed.push_back(loop.After(delay, [packet, sending] { sending(packet); }));
}

}  // namespace orvelle::mumble
