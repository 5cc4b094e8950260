#include "adapters/mqtt/Presences.h"

#include <utility>

namespace orvelle::mqtt {

namespace {

// A broker that ends in order says goodbye for everybody, and then is gone itself; nobody's role shall move for that.
// The simulator's goodbye counts at once, as keys are let go by it.
constexpr Long PanelsGoodbyeMilliseconds = 200;

}  // namespace

void Presences::Hear(ProgramAt program, const std::optional<PresenceSetting>& said) {
    if (!said) {
        if (program.Kind == Program::Simulator) return Forget(program);
        const auto going = there.find(program);
        if (going != there.end())
            going->second.End = loop.After(PanelsGoodbyeMilliseconds, [this, program] { Forget(program); });
        return;
    }
    const auto [found, isNew] = there.try_emplace(program);
    Present& present = found->second;
    present.End = loop.After(LeaseMilliseconds, [this, program] { Forget(program); });
    PresenceSetting before = std::exchange(present.Said, *said);
    before.Beat = said->Beat;
    if (isNew || before != *said) Changed();
}

void Presences::Forget(ProgramAt program) {
    if (there.erase(program) > 0) Changed();
}

const PresenceSetting* Presences::Find(ProgramAt program) const {
    const auto found = there.find(program);
    return found != there.end() ? &found->second.Said : nullptr;
}

int Presences::SimulatorOffering(bool PresenceSetting::*offer) const {
    for (const auto& [program, present] : there)
        if (program.Kind == Program::Simulator && present.Said.*offer) return program.Identity;
    return 0;
}

}  // namespace orvelle::mqtt
