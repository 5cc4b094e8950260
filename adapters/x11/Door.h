// The door by which another program ends the panel: an X window that never shows, named "OrvelleCP Stub1". A client
// message of the type ORVELLECP_MESSAGE sent to it comes to the control as a message of its window, from the loop:
// data.l[0] is the number, data.l[1] and data.l[2] are wParam and lParam. Where there is no X server there is no door.
#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QObject>

#include "adapters/shared/WindowTable.h"
#include "platform/controls/Control.h"

namespace orvelle {

class Door : private QAbstractNativeEventFilter {
public:
    Door(const WindowTable& windowTable, Control& stubControl);
    ~Door() override;

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    const WindowTable& table;
    Control& stub;
    QObject context;
    xcb_connection_t* const connection;
    xcb_window_t window = XCB_NONE;
    xcb_atom_t messageType = XCB_ATOM_NONE;
};

}  // namespace orvelle
