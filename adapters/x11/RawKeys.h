// The user's keys on this computer, whichever window has them and whoever grabs them: raw events of the X server, told
// to the far side of the simulator link by the names of LayoutKeyNames.h. Strokes that programs send are left out. What
// is held when this begins is pressed then; what went up unseen is let go when devices or the layout change, and
// everything when the server is lost, after which nothing comes any more. A held key that repeats is told once: a
// mapping that toggles would else go off again while its key is held. Loop and far side outlive this object.
#pragma once

#include <xcb/xcb.h>

#include <array>
#include <memory>
#include <string>

#include "adapters/shared/DeviceInputs.h"
#include "adapters/x11/KeyLayout.h"
#include "adapters/x11/ServerKeyboards.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle {

class RawKeys {
public:
    // `display` "" is the environment's.
    RawKeys(EventLoop& eventLoop, SimulatorSide& simulator, const std::string& display);

    // One sentence; "" while keys are read.
    const std::string& Problem() const { return problem; }
    // The sentence, when the server is lost.
    Event<const std::string&> Told;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
    };

    void Serve();
    void TakeInput(const xcb_generic_event_t& event);
    void Press(int device, int keyCode);
    void LookAtKeyboards();

    EventLoop& loop;
    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    std::string problem;
    KeyLayout layout;
    ServerKeyboards keyboards;
    std::array<std::string, 256> names;  // by key code, so that no key waits for an answer of the server
    DeviceInputs held;
    std::uint8_t inputExtension = 0;
    Ticket served;
    Ticket looking;
};

}  // namespace orvelle
