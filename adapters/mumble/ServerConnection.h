// The encrypted connection to a voice server: reached, kept and read without waiting. Held by a session. What it raises
// comes from the loop; a handler may close it, but not destroy it.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "adapters/mumble/TcpDial.h"
#include "adapters/mumble/TlsStream.h"
#include "platform/Event.h"

namespace orvelle::mumble {

class ServerConnection {
public:
    // Begins at once. `certificate` outlives it.
    ServerConnection(EventLoop& loop, const HostAndPort& place, const OwnCertificate& certificate);
    ServerConnection(const ServerConnection&) = delete;
    ServerConnection& operator=(const ServerConnection&) = delete;
    ~ServerConnection();

    // Sent as soon as the other end takes it. One that takes nothing is given up.
    void Send(std::string_view bytes);
    // Bytes that the other end did not take yet.
    std::size_t Unsent() const { return outgoing.size(); }
    // Nothing is raised any more.
    void Close();
    bool IsClosed() const { return isClosed; }

    // Once open.
    std::string Fingerprint() const { return tls ? tls->Fingerprint() : ""; }
    int Socket() const { return socket.Number(); }
    const HostAndPort& Place() const { return place; }

    Event<> Opened;
    Event<std::span<const std::uint8_t>> Received;
    Event<ConnectionEnd> Ended;  // once, after all that came before it

private:
    void Begin(FileDescriptor connected, ConnectionEnd why);
    void Read();
    void HandOn();
    void Flush();
    void End(ConnectionEnd why);

    EventLoop& loop;
    const HostAndPort place;
    const OwnCertificate& certificate;
    bool isClosed = false;
    bool isOpen = false;
    bool isEnding = false;
    bool hasToWait = false;  // for the other end to take more
    bool isDeaf = false;     // the other end takes nothing any more; what it said is still to be read
    std::string outgoing;
    FileDescriptor socket;
    std::unique_ptr<TlsStream> tls;
    std::unique_ptr<TcpDial> dial;
    Ticket readable;
    Ticket writable;
    Ticket ending;
};

}  // namespace orvelle::mumble
