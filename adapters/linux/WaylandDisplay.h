// Whether this process belongs to a Wayland session that answers.
#pragma once

namespace orvelle::linux {

// The session that the environment names, asked by a connection that is closed at once.
bool HasWaylandDisplay();

}  // namespace orvelle::linux
