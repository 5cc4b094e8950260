#include "deck/KeyRepeatRequest.h"

#include <xcb/xkb.h>

void RequestDetectableRepeat(xcb_connection_t* connection) {
    const xcb_xkb_per_client_flags_cookie_t request =
        xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT,
                                 XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT, 0, 0, 0);
    xcb_discard_reply(connection, request.sequence);
}
