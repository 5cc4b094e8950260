// What a window manager publishes about the windows of an X server, and what may be asked of it. A connection of its
// own, with events of the list of windows, of the focus, and of the windows that are observed. Windows may vanish at
// any time; then everything about them is 0 or empty. Used by the watch over minimised starts.
#pragma once

#include <sys/types.h>
#include <xcb/xcb.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvelle {

class TopLevelWindows {
public:
    enum class State { NotShown, Normal, Icon };
    struct Change {
        enum Kind { Created, Destroyed, Altered, List, Focus } What;
        xcb_window_t Window;  // of the first three
    };

    // `display` "" is the environment's.
    explicit TopLevelWindows(const std::string& display);

    bool IsConnected() const { return !xcb_connection_has_error(connection.get()); }
    int Descriptor() const { return xcb_get_file_descriptor(connection.get()); }
    // The next change that was told, if there is one; never waits. What was asked goes out with it.
    std::optional<Change> Next();

    std::vector<xcb_window_t> List() { return Property(root, atoms[ClientList]); }
    xcb_window_t Focused() { return First(root, atoms[ActiveWindow]); }
    pid_t ProcessOf(xcb_window_t window) { return static_cast<pid_t>(First(window, atoms[ProcessId])); }
    State StateOf(xcb_window_t window);

    void Observe(xcb_window_t window);
    // For a window that is not shown yet: it wishes to begin as an icon and without the focus.
    void AskToBeginAsIcon(xcb_window_t window);
    void AskToBecomeIcon(xcb_window_t window);
    void AskForFocus(xcb_window_t window);

private:
    enum Name { ActiveWindow, ClientList, ProcessId, UserTime, StateName, ChangeState, Names };
    struct Disconnect {
        void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
    };

    void FindRoot(int screenNumber);
    void FindAtoms();
    std::vector<std::uint32_t> Property(xcb_window_t window, xcb_atom_t property);
    std::uint32_t First(xcb_window_t window, xcb_atom_t property);
    void SetProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                     const std::vector<std::uint32_t>& value);
    void TellManager(xcb_window_t window, xcb_atom_t message, std::uint32_t first);

    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    xcb_window_t root = XCB_NONE;
    xcb_atom_t atoms[Names] = {};
};

}  // namespace orvelle
