#include "adapters/qt/services/QtMessageQueue.h"

#include <QCoreApplication>

namespace orvelle::qt {

void QtMessageQueue::DoEvents() {
    const KeyCapture::Mode before = keys.SetMode(KeyCapture::Mode::Dropping);
    QCoreApplication::processEvents();
    keys.DropWaiting();
    keys.SetMode(before);
}

bool QtMessageQueue::PeekMessageA(WindowMessage& message, Long remove) {
    const bool removes = remove == RemoveMessage;
    if (keys.Take(message, removes)) return true;
    QCoreApplication::processEvents();
    return keys.Take(message, removes);
}

void QtMessageQueue::TranslateMessage(const WindowMessage&) {}

void QtMessageQueue::DispatchMessageA(const WindowMessage& message) {
    if (message.Window != nullptr) table.Deliver(*message.Window, message.Number, message.WParam, message.LParam);
}

}  // namespace orvelle::qt
