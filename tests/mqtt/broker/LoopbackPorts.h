// Ports of this computer's own network, as tests need them: one that nobody has, one that somebody has, and one where
// somebody takes every connection, and never says a word unless a test accepts it.
#pragma once

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::mqtt {

// A port that nobody listens on now; 0 if there is none.
int FreePort();
bool Listens(int port);

class LoopbackListener {
public:
    LoopbackListener();
    int Port() const;

    const FileDescriptor Socket;
};

}  // namespace orvelle::mqtt
