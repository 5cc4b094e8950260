#include "adapters/qt/services/QtWindows.h"

#include <QWindow>

namespace orvelle::qt {

namespace {

Rectangle FromQt(const QRect& rectangle) {
    return {rectangle.left(), rectangle.top(), rectangle.left() + rectangle.width(),
            rectangle.top() + rectangle.height()};
}

}  // namespace

void QtWindows::SetCapture(Control& window) {
    QWidget* widget = widgetOf(window);
    keys.SetTarget(window, widget);
    keys.SetMode(KeyCapture::Mode::Capturing);
    // A text that can be edited would have an input method compose the keys before they come here.
    if (widget != nullptr) widget->setFocus();
    if (auto* field = qobject_cast<QLineEdit*>(widget))
        secondsLeft = std::make_unique<SecondsLeft>(*field, LocalCaptureTime / 1000);
}

void QtWindows::ReleaseCapture() {
    secondsLeft.reset();
    keys.SetMode(KeyCapture::Mode::Off);
    keys.DropWaiting();
}

void QtWindows::SetWindowPos(Control& window, Long insertAfter, Long, Long, Long, Long, Long) {
    QWidget* widget = widgetOf(window);
    if (widget == nullptr || (insertAfter != InsertTopmost && insertAfter != InsertNotTopmost)) return;
    QWidget* top = widget->window();
    // Setting the flag on the widget would take its window away and make it anew; the window itself tells the window
    // manager and stays as it is.
    const bool isTopmost = insertAfter == InsertTopmost;
    top->overrideWindowFlags(top->windowFlags().setFlag(Qt::WindowStaysOnTopHint, isTopmost));
    if (top->windowHandle() != nullptr) top->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, isTopmost);
}

Rectangle QtWindows::GetWindowRect(Control& window) {
    const QWidget* widget = widgetOf(window);
    if (widget == nullptr) return {};
    if (widget->isWindow()) return FromQt(widget->frameGeometry());
    return FromQt(QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()));
}

Rectangle QtWindows::GetClientRect(Control& window) {
    const QWidget* widget = widgetOf(window);
    return widget == nullptr ? Rectangle{} : FromQt(widget->rect());
}

std::intptr_t QtWindows::SetWindowLongA(Control& window, Long index, std::intptr_t value) {
    return table.SetLong(window, index, value);
}

std::intptr_t QtWindows::GetWindowLongA(Control& window, Long index) { return table.GetLong(window, index); }

Long QtWindows::CallWindowProcA(std::intptr_t procedure, Control& window, Long message, Long wParam, Long lParam) {
    return WindowTable::Call(procedure, window, message, wParam, lParam);
}

void QtWindows::DrawEdge(Control&, Long, Long) {}

}  // namespace orvelle::qt
