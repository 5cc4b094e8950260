#include "adapters/x11/KeyRepeat.h"

#include <QGuiApplication>

#include "adapters/x11/XkbRequests.h"

namespace orvelle {

void TellRepeatsAsPresses() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // A screen of the toolkit's own may tell of an X server and have no connection to it.
    xcb_connection_t* connection = x11 == nullptr ? nullptr : x11->connection();
    if (connection != nullptr) RequestDetectableRepeat(connection);
}

}  // namespace orvelle
