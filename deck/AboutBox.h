// The version, the licence and where to read on, in a message before a window.
#pragma once

class QWidget;

namespace orvelle::deck {

// The version is the application's. Returns at once; the message goes when the user closes it.
void ShowAbout(QWidget& window);

}  // namespace orvelle::deck
