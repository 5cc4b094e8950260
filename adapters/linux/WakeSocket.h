// The way by which another program of this user asks the running one, as the panel, to show itself: a socket beside the
// instance lock, so that it needs neither window system nor session bus. A wish is one datagram of a word. What comes
// from another user or is no such word is dropped. A socket that a panel left behind does no harm.
#pragma once

#include <optional>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "adapters/shared/Wish.h"

namespace orvelle::linux {

class WakeSocket {
public:
    // `path` lies in a folder that is the user's alone.
    explicit WakeSocket(std::string path) : path(std::move(path)) {}

    // For the panel that holds the lock. Where no socket can be had nobody can wake it.
    void Listen();
    // For the loop: readable when a wish has come; -1 where nobody listens.
    int Descriptor() const { return socket.Number(); }
    // Nothing if what came is dropped, or nothing came.
    std::optional<Wish> Take();

    // For the others: false if no panel listens. Never waits.
    bool Ask(Wish wish) const;

private:
    const std::string path;
    FileDescriptor socket;
};

}  // namespace orvelle::linux
