// Whether there is an X server to show the panel on, asked before Qt would abort the program for want of one.
#pragma once

#include <string>

namespace orvelle {

// One sentence on what is missing; "" if the display can be opened.
std::string MissingDisplay();

}  // namespace orvelle
