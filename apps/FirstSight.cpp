#include "apps/FirstSight.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace orvelle {

FirstSight::FirstSight(const QWidget& window, std::function<void()> seen) : watched(window), call(std::move(seen)) {
    if (watched.windowHandle()) watched.windowHandle()->installEventFilter(this);
    QTimer::singleShot(0, this, [this] { Look(); });
}

bool FirstSight::eventFilter(QObject* window, QEvent* event) {
    // Handed on first, so that the window has taken it in.
    if (event->type() == QEvent::Expose) QTimer::singleShot(0, this, [this] { Look(); });
    return QObject::eventFilter(window, event);
}

void FirstSight::Look() {
    if (!call || !watched.windowHandle() || !watched.windowHandle()->isExposed()) return;
    std::exchange(call, nullptr)();
}

}  // namespace orvelle
