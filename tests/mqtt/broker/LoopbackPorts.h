// Ports of this computer's own network, as tests need them: one that somebody has, and one where somebody takes every
// connection, and never says a word unless a test accepts it.
#pragma once

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::mqtt {

class LoopbackListener {
public:
    LoopbackListener();
    int Port() const;

    const FileDescriptor Socket;
};

}  // namespace orvelle::mqtt
