#include "adapters/shared/SimulatorDesk.h"

namespace orvelle {

namespace {

constexpr std::size_t SoundsKept = 200;

std::string ButtonText(const std::string& device, const std::string& button) { return device + "." + button; }

}  // namespace

void SimulatorDesk::SetComputer(const SimulatorComputer& newComputer) {
    computer = newComputer;
    MarkInputChange();
}

bool SimulatorDesk::PressKey(const std::string& key) {
    if (!TakesInput() || key.empty()) return false;
    const bool isNew = held.Press({InputKind::Key, key});
    SayHeld(isNew ? "" : key);
    return true;
}

void SimulatorDesk::RepeatKey(const std::string& key) {
    if (held.IsHeld({InputKind::Key, key})) SayHeld(key);
}

void SimulatorDesk::ReleaseKey(const std::string& key) {
    if (held.Release({InputKind::Key, key})) SayHeld();
}

bool SimulatorDesk::PressButton(const std::string& device, const std::string& button) {
    if (!TakesInput()) return false;
    if (held.Press({InputKind::Button, ButtonText(device, button)})) SayHeld();
    return true;
}

void SimulatorDesk::ReleaseButton(const std::string& device, const std::string& button) {
    if (held.Release({InputKind::Button, ButtonText(device, button)})) SayHeld();
}

void SimulatorDesk::ReleaseAll() {
    if (HoldsNothing()) return;
    held.Clear();
    SayHeld();
}

void SimulatorDesk::SetSimulatorActive(bool active) {
    simulatorActive = active;
    if (!HoldsNothing()) SayHeld();
    MarkInputChange();
}

void SimulatorDesk::SayHeld(const std::string& repeat) {
    MarkInputChange();
    SimulatorInput input = Held();
    input.Repeat = repeat;
    SayInput(input);
}

void SimulatorDesk::TakeSound(const std::string& path) {
    if (sounds.size() == SoundsKept) sounds.erase(sounds.begin());
    sounds.push_back(path);
    ++soundsPlayed;
    MarkInputChange();
}

void SimulatorDesk::TakeReady() {
    ++timesReady;
    MarkInputChange();
}

}  // namespace orvelle
