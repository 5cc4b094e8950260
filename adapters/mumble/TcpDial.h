// One attempt to reach a server by TCP: its name is looked up, and its addresses are tried in their order. Held by a
// server's connection until it has the answer.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/shared/FileDescriptor.h"
#include "adapters/shared/HostAndPort.h"
#include "adapters/shared/HostLookup.h"
#include "platform/EventLoop.h"

namespace orvelle::mumble {

enum class ConnectionEnd { NoSuchHost, Refused, Unreachable, Silent, NoVoiceServer, Closed };

class TcpDial {
public:
    // A connected socket that does not block, or none and why. Told once, from the loop; may end the attempt.
    using Answer = std::function<void(FileDescriptor socket, ConnectionEnd why)>;

    TcpDial(EventLoop& loop, const HostAndPort& place, Answer answer);
    TcpDial(const TcpDial&) = delete;
    TcpDial& operator=(const TcpDial&) = delete;

private:
    void TryNext();
    void Look();
    void Fail(ConnectionEnd why);
    void Tell(ConnectionEnd why);

    EventLoop& loop;
    int port;
    Answer answer;
    ConnectionEnd reason = ConnectionEnd::NoSuchHost;
    std::vector<std::string> addresses;  // still to be tried, the next one last
    FileDescriptor socket;
    Ticket patience;
    Ticket connected;
    Ticket failed;
    std::unique_ptr<HostLookup> lookup;
};

}  // namespace orvelle::mumble
