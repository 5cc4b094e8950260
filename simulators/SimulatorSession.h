// The session as a simulator flies it: while one is there, its radios, callsign and state are set on the far side of
// the framework link, with the voice records that the directories give for them. A simulator that appears takes over
// from what was set by hand, with a session of its own; one that goes ends it, and what stood there by hand before
// stands there again, without a session.
//
// Frequencies, selections and callsign are set at once. A voice record is set once its radio has stayed on a frequency
// for 400 ms, as a knob passes many; and again when the choice of its station changes. A radio that is outside the
// band, or that hasn't worked for 400 ms, has none. What is told together is set together, at most 20 times a second.
#pragma once

#include <array>
#include <deque>
#include <optional>
#include <string>

#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/sides/NetworkSide.h"
#include "simulators/SimulatorChoice.h"
#include "simulators/directory/Directories.h"
#include "simulators/directory/OwnLogins.h"

namespace orvelle::simulators {

// What one radio came to, for the user to read.
struct RadioTold {
    int Kilohertz = 0;
    bool IsSettled = false;      // the record is that of this frequency
    directory::Choice Chosen{};  // of the record; not tuned where the radio doesn't work
};

class SimulatorSession {
public:
    static constexpr Long SettlingMilliseconds = 400;
    // What is set at most within this time; a simulator tells 20 times a second itself, not always evenly.
    static constexpr std::size_t MostAtOnce = 4;
    static constexpr Long PaceMilliseconds = 200;

    // All outlive this object; the Changed of choice and directories is its.
    SimulatorSession(EventLoop& eventLoop, SimulatorChoice& simulatorChoice, directory::Directories& allDirectories,
                     const directory::OwnLogins& ownLogins, NetworkSide& networkSide);
    SimulatorSession(const SimulatorSession&) = delete;
    SimulatorSession& operator=(const SimulatorSession&) = delete;

    // A simulator sets the session now, and nobody else should.
    bool Rules() const { return ruling != nullptr; }
    const std::array<RadioTold, 2>& Radios() const { return told; }
    // By which callsign the user is known where the simulator tells none, as X-Plane; "" for the aircraft's
    // registration.
    void SetOwnCallsign(const std::string& callsign);
    const std::string& OwnCallsign() const { return ownCallsign; }
    void TakeUpLogins() { Follow(); }  // they were changed

    Event<> Changed;  // any of these, or what the simulator tells

private:
    struct Tuning {
        int Kilohertz = 0;
        bool IsOperable = false;
        bool operator==(const Tuning&) const = default;
    };
    struct Tuned {
        std::optional<Tuning> Now;
        std::optional<Tuning> Settled;  // whose record is set
        Ticket Settling;
    };

    void Follow();
    void Rule(SimulatorSource& source);
    void GiveBack();
    void Tune(std::size_t radio, const Tuning& now);
    void Settle(std::size_t radio);
    void ChooseStations(const SimulatorState& state);
    void Say();
    SessionSetting SettingOf(const SimulatorState& state) const;
    std::string CallsignOf(const SimulatorState& state) const;

    EventLoop& loop;
    SimulatorChoice& choice;
    directory::Directories& directories;
    const directory::OwnLogins& logins;
    NetworkSide& network;
    SimulatorSource* ruling = nullptr;
    int run = 0;
    SessionSetting byHand;
    std::string ownCallsign;
    std::array<RadioTold, 2> told;
    std::array<Tuned, 2> tuned;
    std::deque<Ticket> justSaid;  // one for each message, until its time is over
};

}  // namespace orvelle::simulators
