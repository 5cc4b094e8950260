#include "simulators/SimulatorChoice.h"

#include <algorithm>
#include <utility>

namespace orvelle::simulators {

SimulatorChoice::SimulatorChoice(std::vector<SimulatorSource*> allSources) : sources(std::move(allSources)) {
    for (SimulatorSource* const source : sources) source->Changed = [this] { Follow(); };
    Follow();
}

void SimulatorChoice::Activate(const std::string& program) {
    const auto found = std::ranges::find_if(sources, [&](const SimulatorSource* source) {
        const std::vector<std::string> programs = source->Programs();
        return std::ranges::find(programs, program) != programs.end();
    });
    if (found == sources.end() || std::exchange(active, *found) == *found) return;
    Follow();
}

std::vector<SimulatorSource*> SimulatorChoice::PassedOver() const {
    std::vector<SimulatorSource*> others = there;
    std::erase(others, chosen);
    return others;
}

void SimulatorChoice::Follow() {
    for (SimulatorSource* const source : sources) {
        const bool isThere = source->Stands() != Presence::Absent;
        const bool wasThere = std::ranges::find(there, source) != there.end();
        if (isThere && !wasThere) there.push_back(source);
        if (isThere || !wasThere) continue;
        std::erase(there, source);
        // Its window is gone, too; that of its next process is another one.
        if (active == source) active = nullptr;
    }
    chosen = Best();
    Changed();
}

SimulatorSource* SimulatorChoice::Best() const {
    SimulatorSource* best = nullptr;
    const auto rank = [this](const SimulatorSource& source) {
        return std::pair(source.State().has_value(), &source == active);
    };
    for (SimulatorSource* const source : there)
        if (!best || rank(*source) > rank(*best)) best = source;
    return best;
}

}  // namespace orvelle::simulators
