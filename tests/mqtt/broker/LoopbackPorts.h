// Ports of this computer's own network, as tests need them: one that nobody has, one that somebody has, and one where
// somebody takes every connection and never says a word.
#pragma once

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::mqtt {

// A port that nobody listens on now; 0 if there is none.
int FreePort();
bool Listens(int port);

class SilentListener {
public:
    SilentListener();
    int Port() const;

private:
    FileDescriptor socket;
};

}  // namespace orvelle::mqtt
