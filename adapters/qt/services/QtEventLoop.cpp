#include "adapters/qt/services/QtEventLoop.h"

#include <QMetaObject>
#include <QPointer>
#include <QTimer>
#include <chrono>
#include <utility>

namespace orvelle::qt {

void QtEventLoop::Post(Task task) { QMetaObject::invokeMethod(&context, std::move(task), Qt::QueuedConnection); }

// Timers and notifiers are the loop's and go with it. They are deleted later, since a ticket may end inside their call.

Ticket QtEventLoop::After(Long milliseconds, Task task) {
    Attachment<> moment;
    if (milliseconds <= 0) {
        Ticket ticket = moment.Begin(std::move(task));
        Post(moment);
        return ticket;
    }
    const QPointer<QTimer> timer(new QTimer(&context));
    Ticket ticket = moment.Begin(std::move(task), [timer] {
        if (timer == nullptr) return;
        timer->stop();
        timer->deleteLater();
    });
    timer->setSingleShot(true);
    // A coarse timer may overtake one that was made before it.
    timer->setTimerType(Qt::PreciseTimer);
    timer->callOnTimeout(&context, moment);
    timer->start(std::chrono::milliseconds(milliseconds));
    return ticket;
}

Ticket QtEventLoop::WhenReadable(int descriptor, Task task) {
    return Await(descriptor, QSocketNotifier::Read, std::move(task));
}

Ticket QtEventLoop::WhenWritable(int descriptor, Task task) {
    return Await(descriptor, QSocketNotifier::Write, std::move(task));
}

Ticket QtEventLoop::Await(int descriptor, QSocketNotifier::Type type, Task task) {
    const QPointer<QSocketNotifier> notifier(new QSocketNotifier(descriptor, type, &context));
    Attachment<> ready;
    Ticket ticket = ready.Begin(std::move(task), [notifier] {
        if (notifier == nullptr) return;
        notifier->setEnabled(false);
        notifier->deleteLater();
    });
    QObject::connect(notifier, &QSocketNotifier::activated, &context, ready);
    return ticket;
}

}  // namespace orvelle::qt
