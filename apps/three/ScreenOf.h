// What an X server shows now, all windows and the desktop under them.
#pragma once

#include <QImage>
#include <string>

namespace orvelle {

// Null where the server does not answer, or keeps its pixels in another way than virtual ones do.
QImage ScreenOf(const std::string& display);

}  // namespace orvelle
