#include "adapters/x11/XkbRequests.h"

#include <stdint.h>
#include <xcb/xkb.h>

void SelectLayoutEvents(xcb_connection_t* connection, int device) {
    const uint16_t events =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    const uint16_t mapParts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS;
    xcb_xkb_select_events_details_t details = {0};
    details.affectState = details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    details.affectNewKeyboard = details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    xcb_xkb_select_events_aux(connection, (xcb_xkb_device_spec_t)device, events, 0, 0, mapParts, mapParts, &details);
}

void LockLayout(xcb_connection_t* connection, int layout) {
    xcb_xkb_latch_lock_state(connection, XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, (uint8_t)layout, 0, 0, 0);
}

void RequestDetectableRepeat(xcb_connection_t* connection) {
    const xcb_xkb_per_client_flags_cookie_t request =
        xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT,
                                 XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT, 0, 0, 0);
    xcb_discard_reply(connection, request.sequence);
}
