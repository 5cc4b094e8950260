// The signals that ask this process to end (SIGTERM, SIGINT, SIGHUP) as something that the event loop can wait for, so
// that the end is an orderly one, on the loop's thread, between two events. Also keeps a peer's broken pipe from ending
// the process. To be made first in main, before anything that starts a thread.
#pragma once

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

class TerminationSignals {
public:
    TerminationSignals();

    // For the loop: readable when a signal has come.
    int Descriptor() const { return file.Number(); }
    // The signal that has come, 0 if none has.
    int Take();

private:
    FileDescriptor file;
};

}  // namespace orvelle::linux
