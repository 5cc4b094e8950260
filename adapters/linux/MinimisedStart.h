// Keeps the windows of programs just started out of the user's way, as far as the window manager lets it: asks for
// them to begin as icons, turns those that appear all the same into icons, and gives the focus back if one took it.
// X has no start-up state that a starter could set for a program it starts, so the windows of the started session are
// watched by events for some seconds after the start; before and after there is neither connection nor timer.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "adapters/x11/TopLevelWindows.h"

namespace orvelle::linux {

class MinimisedStart {
public:
    // `display` "" is the environment's; `patience` is how long after the last start windows are looked after.
    explicit MinimisedStart(std::string display, std::chrono::milliseconds patience = std::chrono::seconds(10));

    // For the loop: readable when Serve has something to do, the same one for the object's whole life.
    int Descriptor() const { return readiness.Number(); }
    void Serve();

    // Before a start: notes who has the focus. The start-up id for the program's environment, which asks for no focus.
    std::string Prepare();
    // After the start: the session that the program and all that it starts belong to, or that it came to nothing.
    void Watch(pid_t session);
    void Cancel();
    bool IsWatching() const { return windows.has_value(); }

private:
    enum class Stage { Nameless, Foreign, Expected, Asked, Done };

    void Begin();
    void End();
    void SetTimer(std::chrono::milliseconds time);
    void Meet(xcb_window_t window);
    void LookAt(xcb_window_t window);
    void LookAtFocus();

    std::string display;
    std::chrono::milliseconds patience;
    FileDescriptor readiness;  // of the timer and the connection
    FileDescriptor timer;
    std::optional<TopLevelWindows> windows;
    std::map<xcb_window_t, Stage> stages;
    std::set<pid_t> sessions;
    xcb_window_t focused = XCB_NONE;
    unsigned starts = 0;
};

}  // namespace orvelle::linux
