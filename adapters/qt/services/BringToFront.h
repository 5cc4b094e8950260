// Brings a window before all others, with the focus, because the user asked for it by another program. The window is
// shown, or is just being shown.
#pragma once

class QWidget;

namespace orvelle::qt {

void BringToFront(QWidget& window);

}  // namespace orvelle::qt
