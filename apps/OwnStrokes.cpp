#include "apps/OwnStrokes.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

#include "apps/ThisComputer.h"

namespace orvelle {

OwnStrokes::OwnStrokes(const ThisComputer& thisComputer, const QWidget& window)
    : computer(thisComputer), shielded(window) {
    QCoreApplication::instance()->installEventFilter(this);
}

// A release of a key that never went down there is nothing to it.
bool OwnStrokes::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
    if (!receiver->isWidgetType() || static_cast<QWidget*>(receiver)->window() != &shielded) return false;
    return computer.HoldsKey(static_cast<int>(static_cast<QKeyEvent*>(event)->nativeScanCode()));
}

}  // namespace orvelle
