#include "adapters/embedded/SimulatorLink.h"

namespace orvelle::embedded {

namespace {

constexpr std::size_t SoundsKept = 200;

std::string ButtonText(const std::string& device, const std::string& button) { return device + "." + button; }

}  // namespace

void SimulatorLink::SayReady() {
    ++timesReady;
    MarkChange();
}

void SimulatorLink::SaySound(const std::string& path) {
    if (!IsUp()) return;
    if (sounds.size() == SoundsKept) sounds.erase(sounds.begin());
    sounds.push_back(path);
    ++soundsPlayed;
    MarkChange();
}

void SimulatorLink::SetLink(LinkState state) {
    if (state == LinkState::Down) held.Clear();
    PlayedLink::SetLink(state);
}

void SimulatorLink::SetComputer(const SimulatorComputer& newComputer) {
    computer = newComputer;
    MarkChange();
}

bool SimulatorLink::PressKey(const std::string& key) {
    if (!TakesInput() || key.empty()) return false;
    const bool isNew = held.Press({InputKind::Key, key});
    SayInput(isNew ? "" : key);
    return true;
}

void SimulatorLink::RepeatKey(const std::string& key) {
    if (held.IsHeld({InputKind::Key, key})) SayInput(key);
}

void SimulatorLink::ReleaseKey(const std::string& key) {
    if (held.Release({InputKind::Key, key})) SayInput();
}

bool SimulatorLink::PressButton(const std::string& device, const std::string& button) {
    if (!TakesInput()) return false;
    if (held.Press({InputKind::Button, ButtonText(device, button)})) SayInput();
    return true;
}

void SimulatorLink::ReleaseButton(const std::string& device, const std::string& button) {
    if (held.Release({InputKind::Button, ButtonText(device, button)})) SayInput();
}

void SimulatorLink::ReleaseAll() {
    if (held.InOrder().empty()) return;
    held.Clear();
    SayInput();
}

std::string SimulatorLink::HeldSequence() const { return held.Sequence(); }
std::vector<std::string> SimulatorLink::HeldButtons() const { return held.Buttons(); }

void SimulatorLink::SetSimulatorActive(bool active) {
    simulatorActive = active;
    if (!held.InOrder().empty()) SayInput();
    MarkChange();
}

void SimulatorLink::RaiseUp() {
    Up();
    if (!held.InOrder().empty()) SayInput();
}

void SimulatorLink::SayInput(const std::string& repeat) {
    MarkChange();
    SayWhileUp([this, input = SimulatorInput{simulatorActive, held.Keys(), held.Buttons(), repeat}] { Said(input); });
}

}  // namespace orvelle::embedded
