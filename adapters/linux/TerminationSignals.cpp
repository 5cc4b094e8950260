#include "adapters/linux/TerminationSignals.h"

#include <sys/signalfd.h>

#include <csignal>

namespace orvelle::linux {

TerminationSignals::TerminationSignals() {
    sigset_t ends;
    sigemptyset(&ends);
    for (const int end : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction inherited;
        // Whoever started the program and wants it to ignore one of them (nohup) is obeyed.
        if (sigaction(end, nullptr, &inherited) == 0 && inherited.sa_handler != SIG_IGN) sigaddset(&ends, end);
    }
    pthread_sigmask(SIG_BLOCK, &ends, nullptr);
    file = FileDescriptor(signalfd(-1, &ends, SFD_CLOEXEC | SFD_NONBLOCK));
    signal(SIGPIPE, SIG_IGN);
}

int TerminationSignals::Take() {
    signalfd_siginfo information;
    const bool hasCome = read(file.Number(), &information, sizeof information) == sizeof information;
    return hasCome ? static_cast<int>(information.ssi_signo) : 0;
}

}  // namespace orvelle::linux
