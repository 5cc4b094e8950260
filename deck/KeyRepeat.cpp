#include "deck/KeyRepeat.h"

#include <xcb/xcb.h>

#include <QGuiApplication>

// The header has a member of a name that C++ keeps for itself.
#define explicit isExplicit
#include <xcb/xkb.h>
#undef explicit

namespace orvelle::deck {

void TellRepeatsAsPresses() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) return;
    xcb_connection_t* connection = x11->connection();
    const auto flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto request = xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0);
    xcb_discard_reply(connection, request.sequence);
}

}  // namespace orvelle::deck
