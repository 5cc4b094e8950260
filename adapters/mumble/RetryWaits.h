// How long a lost room waits before its next attempt. Soon while the server's computer refuses, since the server is not
// there then and comes back at any moment; where a connection was had, ever longer: servers ban who comes too often.
// All with a spread, so that those who were lost together don't come back together. Held by a room's connection.
#pragma once

#include <chrono>
#include <cstddef>
#include <random>

#include "adapters/mumble/TcpDial.h"
#include "platform/Types.h"

namespace orvelle::mumble {

class RetryWaits {
public:
    // Milliseconds; `why` is what ended the last attempt or the connection itself.
    Long Next(ConnectionEnd why);
    // The room is joined: a loss soon after that counts as one more failure, a later one as the first.
    void NoteJoined();
    void Restart() { failures = 0; }

private:
    using Clock = std::chrono::steady_clock;

    Long Spread(Long least, Long most) { return std::uniform_int_distribution<Long>(least, most)(chance); }

    std::size_t failures = 0;
    Clock::time_point joinedAt{};
    std::minstd_rand chance{std::random_device()()};
};

}  // namespace orvelle::mumble
