#include "adapters/embedded/SimulatorLink.h"

namespace orvelle::embedded {

void SimulatorLink::SaySound(const std::string& path) {
    if (IsUp()) TakeSound(path);
}

void SimulatorLink::SetLink(LinkState state) {
    if (state == LinkState::Down) LetGo();
    PlayedLink::SetLink(state);
}

void SimulatorLink::RaiseUp() {
    Up();
    if (!HoldsNothing()) SayHeld();
}

void SimulatorLink::SayInput(const SimulatorInput& input) {
    SayWhileUp([this, input] { Said(input); });
}

}  // namespace orvelle::embedded
