#include "apps/OwnStrokes.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

#include "adapters/linux/X11Keyboard.h"

namespace orvelle {

OwnStrokes::OwnStrokes(const linux::X11Keyboard& strikingKeyboard, const QWidget& window)
    : keyboard(strikingKeyboard), shielded(window) {
    QCoreApplication::instance()->installEventFilter(this);
}

// A release of a key that never went down there is nothing to it.
bool OwnStrokes::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
    if (!receiver->isWidgetType() || static_cast<QWidget*>(receiver)->window() != &shielded) return false;
    return keyboard.Holds(static_cast<int>(static_cast<QKeyEvent*>(event)->nativeScanCode()));
}

}  // namespace orvelle
