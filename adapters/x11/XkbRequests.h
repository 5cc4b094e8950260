// Requests of the X keyboard extension, told in C because their header names a field with a C++ keyword.
#pragma once

#include <xcb/xcb.h>

#ifdef __cplusplus
extern "C" {
#endif

// From now on the connection gets the events that change which character a key has: another keyboard or map, another
// layout of the map chosen. Of the keyboard's state nothing else, or every Shift key would send an event.
void SelectLayoutEvents(xcb_connection_t* connection, int device);

// Chooses one of the layouts of the core keyboard, counted from 0.
void LockLayout(xcb_connection_t* connection, int layout);

// From now on the connection gets a repeat of a held key as one more press, without a release before it.
void RequestDetectableRepeat(xcb_connection_t* connection);

#ifdef __cplusplus
}
#endif
