#include "platform/qt/EndSignals.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>
#include <utility>

namespace orvelle {

EndSignals::EndSignals() {
    sigset_t endings;
    sigemptyset(&endings);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&endings, number);
    pthread_sigmask(SIG_BLOCK, &endings, nullptr);
    descriptor = signalfd(-1, &endings, SFD_CLOEXEC | SFD_NONBLOCK);
}

EndSignals::~EndSignals() {
    notifier.reset();
    if (descriptor >= 0) close(descriptor);
}

void EndSignals::Watch(std::function<void()> ask) {
    notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, [this, ask = std::move(ask)] {
        signalfd_siginfo taken;
        if (read(descriptor, &taken, sizeof taken) == sizeof taken) ask();
    });
}

}  // namespace orvelle
