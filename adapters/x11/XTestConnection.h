// A connection to the X server that sends key strokes by its test extension. The keyboard and the key guard have one
// each. Nothing of it ends the program: where there is no server, or it goes away, Problem() is one sentence and every
// stroke does nothing. Which keys are held can be noted on the server itself, as a property of its root window for each
// user: there it outlives every process, and goes with the server whose keys they are.
#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvelle {

enum class KeyStroke { Down, Up };

class XTestConnection {
public:
    // `display` names the server as the environment's DISPLAY does; "" takes that.
    explicit XTestConnection(const std::string& display);

    // "" while strokes can be sent.
    std::string Problem() const;
    // Whether another connection may help.
    bool IsLost() const { return xcb_connection_has_error(connection.get()) != 0; }
    // The stroke is on its way to the server when this returns. `keyCode` is the server's own.
    void Send(int keyCode, KeyStroke stroke);
    // Keeps the note in one order with the strokes; on its way with the next stroke or Finish. It names these keys,
    // ascending, and maybe some that were noted before: each change of it wakes every program that watches the root
    // window.
    void NoteHeldKeys(const std::vector<int>& keyCodes);
    // It names none any more; on its way when this returns.
    void ClearNote();
    std::vector<int> NotedKeys();
    // Returns when the server has taken all strokes.
    void Finish();
    // Hands on the events that the server sent in the meantime; never waits.
    void TakeEvents(const std::function<void(const xcb_generic_event_t&)>& take);
    // For questions about the keyboard. Never null, but broken where Problem() tells so.
    xcb_connection_t* Connection() const { return connection.get(); }

private:
    struct Disconnect {
        void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
    };

    xcb_window_t Root() const { return xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root; }
    void WriteNote(const std::vector<int>& keyCodes);

    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    xcb_atom_t note = XCB_ATOM_NONE;
    std::optional<std::vector<int>> noted;  // ascending; by this connection
    std::string problem;
};

}  // namespace orvelle
