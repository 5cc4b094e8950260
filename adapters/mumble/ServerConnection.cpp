#include "adapters/mumble/ServerConnection.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <utility>

namespace orvelle::mumble {

namespace {

constexpr int ReadsOfOneTurn = 4;  // then others of the loop have their turn
constexpr std::size_t UnsentBound = 1024 * 1024;

}  // namespace

ServerConnection::ServerConnection(EventLoop& usedLoop, const HostAndPort& where, const OwnCertificate& ours)
    : loop(usedLoop), place(where), certificate(ours) {
    dial = std::make_unique<TcpDial>(
        loop, place, [this](FileDescriptor connected, ConnectionEnd why) { Begin(std::move(connected), why); });
}

ServerConnection::~ServerConnection() { Close(); }

void ServerConnection::Begin(FileDescriptor connected, ConnectionEnd why) {
    if (!connected) return End(why);
    socket = std::move(connected);
    tls = std::make_unique<TlsStream>(certificate, place.Host);
    readable = loop.WhenReadable(socket.Number(), [this] { Read(); });
    Flush();
}

void ServerConnection::Send(std::string_view bytes) {
    if (isClosed || isEnding || !tls) return;
    tls->Write(bytes);
    Flush();
}

void ServerConnection::Close() {
    if (std::exchange(isClosed, true)) return;
    dial.reset();
    readable.End();
    writable.End();
    ending.End();
    if (isOpen) {
        tls->End();
        Flush();
    }
    writable.End();
    socket.Close();
}

void ServerConnection::Read() {
    std::array<std::uint8_t, 16 * 1024> bytes;
    for (int reads = 0; reads < ReadsOfOneTurn && !isClosed && !isEnding; ++reads) {
        const ssize_t count = recv(socket.Number(), bytes.data(), bytes.size(), 0);
        if (count < 0 && (errno == EAGAIN || errno == EINTR)) break;
        // Whoever ends before anything is encrypted may be full or have banned us, or is no voice server.
        if (count <= 0) return End(ConnectionEnd::Closed);
        tls->Feed({bytes.data(), static_cast<std::size_t>(count)});
        HandOn();
    }
    if (isClosed) return;
    // The system forgets this one from time to time.
    const int yes = 1;
    setsockopt(socket.Number(), IPPROTO_TCP, TCP_QUICKACK, &yes, sizeof yes);
}

void ServerConnection::HandOn() {
    Flush();
    if (!isOpen && tls->Where() == TlsStream::State::Open) {
        isOpen = true;
        Opened();
    }
    while (!isClosed) {
        const std::span<const std::uint8_t> plain = tls->Take();
        if (plain.empty()) break;
        Received(plain);
    }
    if (isClosed) return;
    if (tls->Where() == TlsStream::State::Ended) return End(ConnectionEnd::Closed);
    if (tls->Where() == TlsStream::State::Failed) End(isOpen ? ConnectionEnd::Closed : ConnectionEnd::NoVoiceServer);
}

// Also while closing, to say goodbye.
void ServerConnection::Flush() {
    if (!tls) return;
    outgoing += tls->TakeOutgoing();
    while (!outgoing.empty() && !isDeaf) {
        const ssize_t count = send(socket.Number(), outgoing.data(), outgoing.size(), MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0 && errno == EAGAIN) break;
        isDeaf = count < 0;
        if (count > 0) outgoing.erase(0, static_cast<std::size_t>(count));
    }
    if (isDeaf || isClosed) outgoing.clear();
    if (outgoing.size() > UnsentBound) return End(ConnectionEnd::Silent);
    const bool hadToWait = std::exchange(hasToWait, !outgoing.empty());
    if (!hasToWait)
        writable.End();
    else if (!hadToWait)
        writable = loop.WhenWritable(socket.Number(), [this] { Flush(); });
}

// Told from the loop, since this may be within a call of our holder's.
void ServerConnection::End(ConnectionEnd why) {
    isEnding = true;
    dial.reset();
    readable.End();
    writable.End();
    ending = loop.After(0, [this, why] {
        Close();
        Ended(why);
    });
}

}  // namespace orvelle::mumble
