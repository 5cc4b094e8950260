#include "adapters/qt/services/QtEventLoop.h"

#include <QMetaObject>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <utility>

namespace orvelle::qt {

void QtEventLoop::Post(std::function<void()> task) {
    QMetaObject::invokeMethod(&context, std::move(task), Qt::QueuedConnection);
}

void QtEventLoop::PostAfter(Long milliseconds, std::function<void()> task) {
    if (milliseconds <= 0) {
        Post(std::move(task));
        return;
    }
    // A coarse timer may overtake one that was posted before it.
    QTimer::singleShot(std::chrono::milliseconds(milliseconds), Qt::PreciseTimer, &context, std::move(task));
}

void QtEventLoop::WhenReadable(int fileDescriptor, std::function<void()> task) {
    auto* notifier = new QSocketNotifier(fileDescriptor, QSocketNotifier::Read, &context);
    QObject::connect(notifier, &QSocketNotifier::activated, &context, std::move(task));
}

}  // namespace orvelle::qt
