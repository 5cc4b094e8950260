#include "adapters/qt/services/KeyCapture.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <utility>

#include "adapters/shared/ScanCodes.h"

namespace orvelle::qt {

namespace {

constexpr Long LeftAlt = 56;
constexpr Long RightAlt = LeftAlt + ExtendedKey;

// 0 for a key that the panel has no code for.
Long CodeOf(const QKeyEvent& key) {
    return ScanCodeOfLinuxKey(static_cast<Long>(key.nativeScanCode()) - XKeyCodeOffset);
}

// Alt, and Alt with another key, unless Ctrl is down too. A right Alt that the layout makes something else, as the key
// that chooses a level, is a key like others.
bool IsSystemKey(const QKeyEvent& key) {
    if (key.modifiers().testFlag(Qt::ControlModifier)) return false;
    const Long code = CodeOf(key);
    const bool isAlt = key.key() == Qt::Key_Alt || key.key() == Qt::Key_Meta;
    if (code == LeftAlt || (code == RightAlt && isAlt)) return true;
    return key.modifiers().testFlag(Qt::AltModifier);
}

bool IsMouse(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove || type == QEvent::Wheel;
}

}  // namespace

KeyCapture::Mode KeyCapture::SetMode(Mode newMode) {
    if (mode == Mode::Off && newMode != Mode::Off) QCoreApplication::instance()->installEventFilter(this);
    if (mode != Mode::Off && newMode == Mode::Off) QCoreApplication::instance()->removeEventFilter(this);
    const Mode before = std::exchange(mode, newMode);
    if ((before == Mode::Off) != (newMode == Mode::Off)) QGuiApplication::inputMethod()->update(Qt::ImEnabled);
    return before;
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

void KeyCapture::Keep(const QKeyEvent& key) {
    const Long code = CodeOf(key);
    if (mode != Mode::Capturing || code == 0) return;
    waiting.push_back({target, KeyDownMessage, static_cast<Long>(key.nativeVirtualKey()), (code << 16) | key.count()});
}

// Menus and the icon in the notification area are other windows, which go on working.
bool KeyCapture::MouseIsCaught(QObject* receiver) const {
    if (mode != Mode::Capturing || targetWidget == nullptr || !receiver->isWidgetType()) return false;
    return receiver != targetWidget.data() && static_cast<QWidget*>(receiver)->window() == targetWidget->window();
}

bool KeyCapture::eventFilter(QObject* receiver, QEvent* event) {
    // An input method would keep a dead key to itself.
    if (event->type() == QEvent::InputMethodQuery) {
        static_cast<QInputMethodQueryEvent*>(event)->setValue(Qt::ImEnabled, false);
        return true;
    }
    // No key is a shortcut: what is taken comes as a press, and one with Alt must not lead away from what is captured.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && !IsSystemKey(*static_cast<QKeyEvent*>(event))) {
        Keep(*static_cast<QKeyEvent*>(event));
        event->accept();
        return true;
    }
    if (!IsMouse(event->type()) || !MouseIsCaught(receiver)) return false;
    // The press has given the focus away already.
    if (event->type() == QEvent::MouseButtonPress) targetWidget->setFocus();
    return true;
}

}  // namespace orvelle::qt
