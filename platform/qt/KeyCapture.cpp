#include "platform/qt/KeyCapture.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <utility>

#include "platform/ScanCodes.h"

namespace orvelle {

namespace {

// Alt alone and Alt with another key, unless Ctrl is down too. The key that chooses the third level of a keyboard is
// no Alt.
bool IsSystemKey(const QKeyEvent& key) {
    if (key.key() == Qt::Key_Alt || key.key() == Qt::Key_Meta) return key.key() == Qt::Key_Alt;
    return key.modifiers().testFlag(Qt::AltModifier) && !key.modifiers().testFlag(Qt::ControlModifier);
}

bool IsMouse(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove || type == QEvent::Wheel;
}

}  // namespace

KeyCapture::Mode KeyCapture::SetMode(Mode newMode) {
    if (mode == Mode::Off && newMode != Mode::Off) QCoreApplication::instance()->installEventFilter(this);
    if (mode != Mode::Off && newMode == Mode::Off) QCoreApplication::instance()->removeEventFilter(this);
    return std::exchange(mode, newMode);
}

void KeyCapture::SetTarget(Control& window, QWidget* widget) {
    target = &window;
    targetWidget = widget;
}

bool KeyCapture::Take(WindowMessage& message, bool remove) {
    if (waiting.empty()) return false;
    message = waiting.front();
    if (remove) waiting.pop_front();
    return true;
}

bool KeyCapture::TakesKey(const QKeyEvent& key) const { return mode != Mode::Off && !IsSystemKey(key); }

void KeyCapture::Keep(const QKeyEvent& key) {
    const Long code = ScanCodeOfLinuxKey(static_cast<Long>(key.nativeScanCode()) - XKeyCodeOffset);
    if (mode != Mode::Capturing || code == 0) return;
    waiting.push_back({target, KeyDownMessage, static_cast<Long>(key.nativeVirtualKey()), (code << 16) | key.count()});
}

bool KeyCapture::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && TakesKey(*static_cast<QKeyEvent*>(event))) {
        // Accepted, so that the key is no shortcut and comes as a press.
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && TakesKey(*static_cast<QKeyEvent*>(event))) {
        Keep(*static_cast<QKeyEvent*>(event));
        event->accept();
        return true;
    }
    if (mode == Mode::Capturing && IsMouse(event->type()) && receiver->isWidgetType())
        return receiver != targetWidget.data();
    return false;
}

}  // namespace orvelle
