#include "platform/embedded/Velmarc.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "platform/embedded/ControlValues.h"

namespace orvelle {

namespace {

constexpr std::size_t SoundsKept = 200;
constexpr const char* ServerValue = "Velmarc.Server";

bool SameHost(const std::string& one, const std::string& other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

std::string ButtonText(const std::string& device, const std::string& button) { return device + "." + button; }

}  // namespace

EmbeddedVelmarc::EmbeddedVelmarc(EventLoop& loop, ControlValues& controlValues, std::vector<std::string> thisComputer)
    : Changed(loop), delivery(loop), values(controlValues), localNames(std::move(thisComputer)) {
    localNames.insert(localNames.end(), {LocalHost, LoopbackAddress, "::1"});
}

void EmbeddedVelmarc::SetServer(const std::string& name) {
    values.SetControlValue(ServerValue, name);
    Changed.Mark();
}

std::string EmbeddedVelmarc::GetServer() { return values.GetControlValue(ServerValue, AutomaticServer); }
bool EmbeddedVelmarc::LinkUp() { return linkUp; }

void EmbeddedVelmarc::ClientReady() {
    ++timesReady;
    Changed.Mark();
}

std::string EmbeddedVelmarc::IPAddress() { return linkUp ? computer.IPAddress : ""; }
std::string EmbeddedVelmarc::ComputerName() { return linkUp ? computer.ComputerName : ""; }
std::string EmbeddedVelmarc::DesktopName() { return linkUp ? computer.DesktopName : ""; }

bool EmbeddedVelmarc::IsLocalAddress(const std::string& name) {
    return std::ranges::any_of(localNames, [&](const std::string& local) { return SameHost(local, name); });
}

void EmbeddedVelmarc::PlaySound(const std::string& path) {
    if (!linkUp) return;
    if (sounds.size() == SoundsKept) sounds.erase(sounds.begin());
    sounds.push_back(path);
    ++soundsPlayed;
    Changed.Mark();
}

void EmbeddedVelmarc::SetLink(LinkState state) {
    if (link == state) return;
    if (state == LinkState::Down) ReleaseAll();
    link = state;
    delivery.Raise([this, state] {
        linkUp = state == LinkState::Up;
        Changed.Mark();
        if (linkUp)
            Connected();
        else
            Disconnected();
    });
    Changed.Mark();
}

void EmbeddedVelmarc::SeeServer(const std::string& name) {
    if (std::ranges::find(serversSeen, name) == serversSeen.end()) serversSeen.push_back(name);
    delivery.Raise([this, name] { ServerFound(name); });
    Changed.Mark();
}

void EmbeddedVelmarc::SetComputer(const SimulatorComputer& newComputer) {
    computer = newComputer;
    Changed.Mark();
}

bool EmbeddedVelmarc::PressKey(const std::string& key) {
    if (link == LinkState::Down || key.empty()) return false;
    const Held thing{Device::Keyboard, key};
    const bool repeat = IsHeld(thing);
    if (!repeat) held.push_back(thing);
    ReportKeyDown(key, repeat);
    return true;
}

void EmbeddedVelmarc::RepeatKey(const std::string& key) {
    if (IsHeld({Device::Keyboard, key})) ReportKeyDown(key, true);
}

void EmbeddedVelmarc::ReleaseKey(const std::string& key) { Release({Device::Keyboard, key}); }

bool EmbeddedVelmarc::PressButton(const std::string& device, const std::string& button) {
    if (link == LinkState::Down) return false;
    const Held thing{Device::Joystick, ButtonText(device, button)};
    if (IsHeld(thing)) return true;
    held.push_back(thing);
    delivery.Raise([this, text = thing.Name] { FSJoyDown(0, 0, text, ""); });
    Changed.Mark();
    return true;
}

void EmbeddedVelmarc::ReleaseButton(const std::string& device, const std::string& button) {
    Release({Device::Joystick, ButtonText(device, button)});
}

void EmbeddedVelmarc::ReleaseAll() {
    while (!held.empty()) Release(Held(held.front()));
}

std::string EmbeddedVelmarc::HeldSequence() const {
    std::string sequence;
    for (const Held& thing : held) {
        if (thing.From != Device::Keyboard) continue;
        if (!sequence.empty()) sequence += "+";
        sequence += thing.Name;
    }
    return sequence;
}

std::vector<std::string> EmbeddedVelmarc::HeldButtons() const {
    std::vector<std::string> buttons;
    for (const Held& thing : held)
        if (thing.From == Device::Joystick) buttons.push_back(thing.Name);
    return buttons;
}

void EmbeddedVelmarc::SetSimulatorActive(bool active) {
    simulatorActive = active;
    Changed.Mark();
}

void EmbeddedVelmarc::Stop() {
    delivery.Stop();
    held.clear();
}

bool EmbeddedVelmarc::IsHeld(const Held& thing) const { return std::ranges::find(held, thing) != held.end(); }

// What is not held was never reported down, so its release is none of the panel's business.
void EmbeddedVelmarc::Release(const Held& thing) {
    if (std::erase(held, thing) == 0) return;
    delivery.Raise([this, thing] {
        if (thing.From == Device::Keyboard)
            FSKeyUp(0, 0, thing.Name, "");
        else
            FSJoyUp(0, 0, thing.Name, "");
    });
    Changed.Mark();
}

void EmbeddedVelmarc::ReportKeyDown(const std::string& key, bool repeat) {
    delivery.Raise([this, repeat, active = simulatorActive, key, sequence = HeldSequence()] {
        FSKeyDown(repeat, active, key, sequence);
    });
    Changed.Mark();
}

}  // namespace orvelle
