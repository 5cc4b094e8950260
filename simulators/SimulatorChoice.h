// Which of the simulators counts, where several are there: the one whose window was last the active one, else the one
// that came first. One that goes leaves the place to the other.
#pragma once

#include <string>
#include <vector>

#include "platform/Event.h"
#include "simulators/SimulatorSource.h"

namespace orvelle::simulators {

class SimulatorChoice {
public:
    // The sources outlive this object, and their Changed is its.
    explicit SimulatorChoice(std::vector<SimulatorSource*> sources);

    // The window of this program became the active one (the name of its file).
    void Activate(const std::string& executable);

    // The one that counts; null while none is there.
    SimulatorSource* Chosen() const { return chosen; }
    // Those that are there and don't count, for the user to read.
    std::vector<SimulatorSource*> PassedOver() const;
    const std::vector<SimulatorSource*>& All() const { return sources; }

    Event<> Changed;  // of any source, or which one counts

private:
    void Choose();

    const std::vector<SimulatorSource*> sources;
    SimulatorSource* chosen = nullptr;
};

}  // namespace orvelle::simulators
