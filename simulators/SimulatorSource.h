// One kind of simulator as it is found and read on this computer. For whoever makes the session of it. Which state it
// tells is whole; changes come from the loop, and a handler may not end the source.
//
// Whether the simulator is there comes from its process: one that is silent is busy, loading or stopped, and keeps what
// it told last; it has gone when its process has ended. Only where the process can't be known (another user's, another
// computer's) ten seconds of silence count as its end.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Event.h"
#include "simulators/SimulatorState.h"

namespace orvelle::simulators {

enum class Presence {
    Absent,  // no simulator of this kind
    Busy,    // its process is there, but nothing was heard of it for two seconds, or nothing yet
    Live,
};

class SimulatorSource {
public:
    virtual ~SimulatorSource() = default;

    virtual std::string Name() const = 0;  // as it is shown: "FlightGear", "X-Plane 12 on cockpit"
    virtual Presence Stands() const = 0;
    // Counts the processes that were heard, from 1: another number is another process, whose session is another one.
    virtual int Run() const = 0;
    // As it was told last by that process; nothing before its first word, and nothing once it is absent.
    virtual const std::optional<SimulatorState>& State() const = 0;
    // The files of its programs, without folders, by which its windows are known, and how a window is called where its
    // program can't be told.
    virtual std::vector<std::string> Programs() const = 0;
    // Why nothing can be heard, or not all that is there, one sentence for the user; "" where all is well.
    virtual std::string Problem() const = 0;

    Event<> Changed;  // any of these
};

}  // namespace orvelle::simulators
