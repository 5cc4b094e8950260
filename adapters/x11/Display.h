// Whether there is an X server to show the panel on, asked before Qt would abort the program for want of one. Keys are
// sent through the X server, so a Wayland session is reached through the X server that it brings along.
#pragma once

#include <string>

namespace orvelle {

// One sentence on what is missing; "" if the display can be opened.
std::string MissingDisplay();

}  // namespace orvelle
