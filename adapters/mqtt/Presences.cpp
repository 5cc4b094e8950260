#include "adapters/mqtt/Presences.h"

#include <utility>

namespace orvelle::mqtt {

void Presences::Hear(ProgramAt program, const std::optional<PresenceSetting>& said) {
    if (!said) {
        if (there.erase(program) > 0) Changed();
        return;
    }
    const auto [found, isNew] = there.try_emplace(program);
    Present& present = found->second;
    present.End = loop.After(LeaseMilliseconds, [this, program] { Hear(program, std::nullopt); });
    PresenceSetting before = std::exchange(present.Said, *said);
    before.Beat = said->Beat;
    if (isNew || before != *said) Changed();
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
