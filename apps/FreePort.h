// A port of this computer that nobody listens on now, for a server that a story starts, so that another one on this
// machine is left alone.
#pragma once

namespace orvelle {

int FreePort(int otherwise);  // `otherwise` where the system gives none

}  // namespace orvelle
