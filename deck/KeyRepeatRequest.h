// A request of the X keyboard extension, told in C because its header names a field with a C++ keyword.
#pragma once

#include <xcb/xcb.h>

#ifdef __cplusplus
extern "C" {
#endif

// From now on the connection gets a repeat of a held key as one more press, without a release before it.
void RequestDetectableRepeat(xcb_connection_t* connection);

#ifdef __cplusplus
}
#endif
