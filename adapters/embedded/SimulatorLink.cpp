#include "adapters/embedded/SimulatorLink.h"

#include <algorithm>

namespace orvelle::embedded {

namespace {

constexpr std::size_t SoundsKept = 200;

std::string ButtonText(const std::string& device, const std::string& button) { return device + "." + button; }

}  // namespace

SimulatorLink::SimulatorLink(EventLoop& loop) : changes(loop), delivery(loop) {}

void SimulatorLink::Open(const std::string& newServer) {
    server = newServer;
    changes.Mark();
    if (isOpen) return;
    isOpen = true;
    if (link == LinkState::Up) ComeUp();
}

void SimulatorLink::Close() {
    delivery.Drop();
    isOpen = false;
    isUp = false;
    server.clear();
    changes.Mark();
}

void SimulatorLink::SayReady() {
    ++timesReady;
    changes.Mark();
}

void SimulatorLink::SaySound(const std::string& path) {
    if (!isUp) return;
    if (sounds.size() == SoundsKept) sounds.erase(sounds.begin());
    sounds.push_back(path);
    ++soundsPlayed;
    changes.Mark();
}

void SimulatorLink::SetLink(LinkState state) {
    if (link == state) return;
    link = state;
    changes.Mark();
    if (state == LinkState::Down) held.Clear();
    if (!isOpen) return;
    if (state == LinkState::Up) return ComeUp();
    delivery.Raise([this] {
        isUp = false;
        changes.Mark();
        Lost();
    });
}

void SimulatorLink::SeeServer(const std::string& name) {
    if (std::ranges::find(serversSeen, name) == serversSeen.end()) serversSeen.push_back(name);
    if (isOpen) delivery.Raise([this, name] { ServerFound(name); });
    changes.Mark();
}

void SimulatorLink::SetComputer(const SimulatorComputer& newComputer) {
    computer = newComputer;
    changes.Mark();
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
    changes.Mark();
}

void SimulatorLink::ComeUp() {
    delivery.Raise([this] {
        isUp = true;
        changes.Mark();
        Up();
    });
    if (!held.InOrder().empty()) SayInput();
}

void SimulatorLink::SayInput(const std::string& repeat) {
    changes.Mark();
    if (!isOpen) return;
    delivery.Raise([this, input = SimulatorInput{simulatorActive, held.Keys(), held.Buttons(), repeat}] {
        if (isUp) Said(input);
    });
}

}  // namespace orvelle::embedded
