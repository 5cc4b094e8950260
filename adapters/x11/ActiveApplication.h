// Whether the simulator is the active application of this computer, told to the far side of the simulator link: so it
// is while the window with the focus is one of the simulator's. While no window of a simulator is there, whether for
// want of a simulator or of an X server, it counts as active, since keys for the radio must work for those who
// practise with no simulator. Asked of the window manager, and where there is none of the input focus. Which
// simulator's window it was last is told, too. Loop and far side outlive this object.
#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/x11/WindowOwner.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle {

class ActiveApplication {
public:
    // The name of the file that a process runs; "" where it can't be told.
    using ExecutableOf = std::function<std::string(pid_t)>;

    // `simulators` names the files of simulators, and their windows where the process can't be told. `display` "" is
    // the environment's.
    ActiveApplication(EventLoop& eventLoop, SimulatorSide& simulatorSide, std::vector<std::string> simulators,
                      ExecutableOf executableOf, const std::string& display);

    // Of the simulators that were named, the one whose window was the active one last; "" for none so far.
    const std::string& LastSimulator() const { return lastSimulator; }
    Event<> Changed;  // LastSimulator, from the loop

private:
    enum Name { ActiveWindow, ClientList, Names };
    struct Disconnect {
        void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
    };

    void Begin();
    void Serve();
    void Take(const xcb_generic_event_t& event);
    void Look();
    void Tell(bool isActive);
    void ObserveFocus(xcb_window_t window);
    std::vector<xcb_window_t> Windows();
    std::vector<xcb_window_t> ChildrenOfRoot();
    std::vector<xcb_window_t> Focused();
    std::optional<std::vector<xcb_window_t>> Property(Name name);
    std::string SimulatorOf(xcb_window_t window);

    EventLoop& loop;
    SimulatorSide& simulator;
    const std::vector<std::string> simulators;
    const ExecutableOf executableOf;
    int screenNumber = 0;
    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    WindowOwner owners;
    xcb_window_t root = XCB_NONE;
    xcb_atom_t atoms[Names] = {};
    // Windows whose process could be told: the simulator whose they are, "" for none.
    std::map<xcb_window_t, std::string> known;
    std::string lastSimulator;
    Ticket served;
    Ticket looking;
};

}  // namespace orvelle
