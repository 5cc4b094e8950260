#include "adapters/mumble/VoiceDatagrams.h"

#include <netinet/in.h>
#include <netinet/ip.h>
#include <sys/socket.h>

#include <array>

namespace orvelle::mumble {

namespace {

constexpr Long BlockedAfter = 5000;  // milliseconds without a ping's return
constexpr std::chrono::seconds MisunderstoodAfter{5};
constexpr int PacketsOfOneTurn = 64;       // then others of the loop have their turn
constexpr int ExpeditedForwarding = 0xB8;  // the class of voice, as routers know it

FileDescriptor SocketTo(int connected) {
    sockaddr_storage far{};
    socklen_t size = sizeof far;
    if (getpeername(connected, reinterpret_cast<sockaddr*>(&far), &size) != 0) return {};
    FileDescriptor opened(socket(far.ss_family, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    const int kind = ExpeditedForwarding;
    setsockopt(opened.Number(), IPPROTO_IP, IP_TOS, &kind, sizeof kind);
    if (far.ss_family == AF_INET6) setsockopt(opened.Number(), IPPROTO_IPV6, IPV6_TCLASS, &kind, sizeof kind);
    if (connect(opened.Number(), reinterpret_cast<const sockaddr*>(&far), size) != 0) opened.Close();
    return opened;
}

}  // namespace

VoiceDatagrams::VoiceDatagrams(EventLoop& usedLoop, int connected) : loop(usedLoop), socket(SocketTo(connected)) {
    if (socket) readable = loop.WhenReadable(socket.Number(), [this] { Read(); });
}

void VoiceDatagrams::SetKeys(const CryptBlock& key, const CryptBlock& ownNonce, const CryptBlock& farNonce) {
    crypt.emplace(key, ownNonce, farNonce);
}

void VoiceDatagrams::SetFarNonce(const CryptBlock& nonce) {
    if (crypt) crypt->SetFarNonce(nonce);
}

void VoiceDatagrams::Close() {
    readable.End();
    patience.End();
    passes = false;
    socket.Close();
}

// What is not taken now is too late soon.
void VoiceDatagrams::Send(std::span<const std::uint8_t> packet) {
    if (!crypt || !socket) return;
    const std::span<const std::uint8_t> encrypted = crypt->Encrypt(packet);
    if (!encrypted.empty()) send(socket.Number(), encrypted.data(), encrypted.size(), MSG_NOSIGNAL);
}

void VoiceDatagrams::Ping() {
    const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now().time_since_epoch());
    Send(WritePing(static_cast<std::uint64_t>(now.count())));
}

void VoiceDatagrams::Read() {
    std::array<std::uint8_t, 2048> bytes;
    for (int packets = 0; packets < PacketsOfOneTurn && socket; ++packets) {
        const ssize_t count = recv(socket.Number(), bytes.data(), bytes.size(), 0);
        if (count < 0 && errno == EAGAIN) return;
        // Also what a router or the other computer said of a packet of ours: it means nothing to us.
        if (count > 0) Take({bytes.data(), static_cast<std::size_t>(count)});
    }
}

void VoiceDatagrams::Take(std::span<const std::uint8_t> packet) {
    if (!crypt) return;
    const auto plain = crypt->Decrypt(packet);
    if (!plain) return Complain();
    lastGood = Clock::now();
    if (!ReadPing(*plain)) return Received(*plain);
    passes = true;
    patience = loop.After(BlockedAfter, [this] {
        passes = false;
        Blocked();
    });
}

void VoiceDatagrams::Complain() {
    const Clock::time_point now = Clock::now();
    if (now - lastGood < MisunderstoodAfter || now - lastComplaint < MisunderstoodAfter) return;
    lastComplaint = now;
    Misunderstood();
}

}  // namespace orvelle::mumble
