// The session as a simulator flies it: while one is there, its radios, callsign and state are set on the far side of
// the framework link, with the voice records that the directories give for them. A simulator that appears takes over
// from what was set by hand, with a session of its own; one that goes ends it, and what stood there by hand before
// stands there again, without a session.
//
// Frequencies, selections and callsign are set at once. A voice record is set once its radio has stayed on a frequency
// for 400 ms, as a knob passes many; and again when the choice of its station changes. What is told together is set
// together, at most 20 times a second.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/sides/NetworkSide.h"
#include "simulators/SimulatorChoice.h"
#include "simulators/directory/Directories.h"

namespace orvelle::simulators {

// What one radio came to, for the user to read.
struct RadioTold {
    int Kilohertz = 0;
    bool IsSettled = false;  // the record is that of this frequency
    directory::Choice Chosen;
};

class SimulatorSession {
public:
    static constexpr Long SettlingMilliseconds = 400;

    // `choice`, `directories` and `network` outlive this object; the Changed of the first two is its.
    SimulatorSession(EventLoop& eventLoop, SimulatorChoice& choice, directory::Directories& directories,
                     NetworkSide& network);

    // A simulator sets the session now, and nobody else should.
    bool Rules() const { return ruling != nullptr; }
    const std::array<RadioTold, 2>& Radios() const { return told; }
    // By which callsign the user is known where the simulator tells none, as X-Plane; "" for none.
    void SetOwnCallsign(const std::string& callsign);
    const std::string& OwnCallsign() const { return ownCallsign; }

    Event<> Changed;

private:
    void Follow();
    void TakeOver(SimulatorSource& source);
    void GiveBack();
    void Say(const SimulatorState& state);
    void Settle(std::size_t radio);

    EventLoop& loop;
    SimulatorChoice& choice;
    directory::Directories& directories;
    NetworkSide& network;
    SimulatorSource* ruling = nullptr;
    int run = 0;
    SessionSetting byHand;
    std::string ownCallsign;
    std::array<RadioTold, 2> told;
    std::array<Ticket, 2> settling;
    Ticket pace;
};

}  // namespace orvelle::simulators
