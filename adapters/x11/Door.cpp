#include "adapters/x11/Door.h"

#include <QGuiApplication>
#include <string>

#include "adapters/x11/XServer.h"

namespace orvelle {

Door::Door(const WindowTable& windowTable, Control& stubControl)
    : table(windowTable), stub(stubControl), connection(XConnection()) {
    if (connection == nullptr) return;
    messageType = XAtom(connection, "ORVELLECP_MESSAGE");
    window = XHiddenWindow(connection);
    const std::string title = "OrvelleCP " + stub.Name;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(title.size()), title.data());
    xcb_flush(connection);
    qApp->installNativeEventFilter(this);
}

Door::~Door() {
    if (window == XCB_NONE) return;
    qApp->removeNativeEventFilter(this);
    xcb_destroy_window(connection, window);
    xcb_flush(connection);
}

bool Door::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto* event = static_cast<const xcb_client_message_event_t*>(message);
    if ((event->response_type & ~0x80) != XCB_CLIENT_MESSAGE || event->window != window) return false;
    if (event->type == messageType && event->format == 32) {
        const auto* data = event->data.data32;
        // From the loop: an error of the handler must not unwind the reading of events.
        QMetaObject::invokeMethod(
            &context,
            [this, number = static_cast<Long>(data[0]), wParam = static_cast<Long>(data[1]),
             lParam = static_cast<Long>(data[2])] { table.Deliver(stub, number, wParam, lParam); },
            Qt::QueuedConnection);
    }
    return true;
}

}  // namespace orvelle
