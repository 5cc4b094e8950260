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

    // The window of this program became the active one, by a name of SimulatorSource::Programs or any other. It may be
    // a simulator's that is still to come, as one that loads has a window long before its first word; any other
    // program's is none of its business.
    void Activate(const std::string& program);

    // The one that counts; null while none is there. One that has told nothing yet counts only where it is alone.
    SimulatorSource* Chosen() const { return chosen; }
    // Those that are there and don't count, for the user to read.
    std::vector<SimulatorSource*> PassedOver() const;
    const std::vector<SimulatorSource*>& All() const { return sources; }

    Event<> Changed;  // of any source, or which one counts

private:
    void Follow();
    SimulatorSource* Best() const;

    const std::vector<SimulatorSource*> sources;
    std::vector<SimulatorSource*> there;  // as they came
    SimulatorSource* active = nullptr;    // whose window was the active one last; null for unknown
    SimulatorSource* chosen = nullptr;
};

}  // namespace orvelle::simulators
