// The road of a room's voice by UDP, encrypted, to the address of its TCP connection: whether packets pass is told by
// pings, which the server sends back. Where they don't, the session takes the tunnel. Held by a session; it tells when
// the road has become or ceased to be passable.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>

#include "adapters/mumble/PacketCrypt.h"
#include "adapters/shared/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::mumble {

class VoiceDatagrams {
public:
    // `connected` is the TCP connection's socket. A system that gives no socket leaves the road impassable.
    VoiceDatagrams(EventLoop& loop, int connected);
    VoiceDatagrams(const VoiceDatagrams&) = delete;
    VoiceDatagrams& operator=(const VoiceDatagrams&) = delete;

    void SetKeys(const CryptBlock& key, const CryptBlock& ownNonce, const CryptBlock& farNonce);
    void SetFarNonce(const CryptBlock& nonce);
    const PacketCrypt* Crypt() const { return crypt ? &*crypt : nullptr; }

    bool Passes() const { return passes; }
    void Send(std::span<const std::uint8_t> packet);
    // To be called every two seconds.
    void Ping();
    // Nothing is raised any more.
    void Close();

    Event<std::span<const std::uint8_t>> Received;  // decrypted, pings left out
    Event<> Blocked;                                // no ping came back for five seconds
    Event<> Misunderstood;                          // we have lost the server's nonce; at most every five seconds

private:
    using Clock = std::chrono::steady_clock;

    void Read();
    void Take(std::span<const std::uint8_t> packet);
    void Complain();

    EventLoop& loop;
    FileDescriptor socket;
    std::optional<PacketCrypt> crypt;
    bool passes = false;
    Clock::time_point lastGood = Clock::now();
    Clock::time_point lastComplaint{};
    Ticket patience;
    Ticket readable;
};

}  // namespace orvelle::mumble
