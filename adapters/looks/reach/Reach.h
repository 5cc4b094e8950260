// How assistive programs, such as screen readers and programs that work a window for somebody, see and work the windows
// of our programs, where Qt's own way leaves something out. ApplyTheme installs it; nothing of it exists before an
// assistive program asks.
#pragma once

namespace orvelle {

void InstallReach();

}  // namespace orvelle
