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

#include "adapters/shared/StrokeTarget.h"

namespace orvelle {

class XTestConnection : public StrokeTarget {
public:
    // `display` names the server as the environment's DISPLAY does; "" takes that.
    explicit XTestConnection(const std::string& display);

    std::string Problem() const override;
    // Whether another connection may help.
    bool IsLost() const { return xcb_connection_has_error(connection.get()) != 0; }
    void Send(int keyCode, KeyStroke stroke) override;
    void Finish() override;
    // Keys that went up stay in the note until it is cleared: each change of it wakes every program that watches the
    // root window.
    void NoteHeldKeys(const std::vector<int>& keyCodes) override;
    void ClearNote() override;
    std::vector<int> NotedKeys() override;
    // Hands on the events that the server sent in the meantime; never waits.
    void TakeEvents(const std::function<void(const xcb_generic_event_t&)>& take);
    // For questions about the server. Never null, but broken where Problem() tells so.
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
