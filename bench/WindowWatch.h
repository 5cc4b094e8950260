// Sees the windows of a display's programs being mapped, with or without a window manager. A tray icon is no window.
// The constructor throws where there is no display.
#pragma once

#include <sys/types.h>
#include <xcb/xcb.h>

#include <cstdint>

namespace orvelle {

class WindowWatch {
public:
    WindowWatch();
    WindowWatch(const WindowWatch&) = delete;
    WindowWatch& operator=(const WindowWatch&) = delete;
    ~WindowWatch();

    // Whether a window of the process was mapped since the last call.
    bool MappedOne(pid_t process);
    // Until the display tells something, or a while has passed.
    void Wait() const;

private:
    void Select(xcb_window_t window, std::uint32_t events);
    bool IsMapped(xcb_window_t window);
    bool Belongs(xcb_window_t window, pid_t process);

    xcb_connection_t* connection;
    xcb_window_t root = 0;
    xcb_atom_t processIdAtom = 0;
};

}  // namespace orvelle
