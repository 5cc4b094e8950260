// The room that a screen has for windows, logical pixels.
#pragma once

#include <QSize>

class QScreen;

namespace orvelle {

// What a window manager may put around a window. How much it really is, is known only after the window was shown.
constexpr QSize FrameAllowance(16, 44);

// The greatest size of a window that still stands on the screen with its frame, beside the desktop's own bars.
QSize MostWindowSize(const QScreen& screen);

}  // namespace orvelle
