#include "adapters/ends/SimulatorEnd.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "platform/ControlValues.h"
#include "platform/ServerNames.h"

namespace orvelle::ends {

namespace {

constexpr const char* ServerValue = "Velmarc.Server";

bool SameHost(const std::string& one, const std::string& other) {
    return std::ranges::equal(one, other,
                              [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

}  // namespace

SimulatorEnd::SimulatorEnd(EventLoop& loop, ControlValues& controlValues, const LineTable<SimulatorLine>& lineTable,
                           std::vector<std::string> thisComputer)
    : delivery(loop), values(controlValues), lines(lineTable), localNames(std::move(thisComputer)) {
    localNames.insert(localNames.end(), {LocalHost, LoopbackAddress, "::1"});
    OpenLine();
}

SimulatorEnd::~SimulatorEnd() { CloseLine(); }

void SimulatorEnd::SetServer(const std::string& name) {
    values.SetControlValue(ServerValue, name);
    ChooseLine();
}

std::string SimulatorEnd::GetServer() { return values.GetControlValue(ServerValue, AutomaticServer); }

bool SimulatorEnd::IsLocalAddress(const std::string& name) {
    return std::ranges::any_of(localNames, [&](const std::string& local) { return SameHost(local, name); });
}

void SimulatorEnd::PlaySound(const std::string& path) {
    if (isUp) line->SaySound(path);
}

void SimulatorEnd::ChooseLine() {
    if (&lines.For(GetServer()) == line) return line->Open(GetServer());
    CloseLine();
    // Before anything that the new line brings.
    delivery.Raise([this] { Lose(); });
    OpenLine();
}

SimulatorComputer SimulatorEnd::FarComputer() { return isUp ? line->FarComputer() : SimulatorComputer{"", "", ""}; }

void SimulatorEnd::OpenLine() {
    line = &lines.For(GetServer());
    line->Up = [this] {
        isUp = true;
        Connected();
    };
    line->Lost = [this] { Lose(); };
    line->Said = [this](const SimulatorInput& said) { Hear(said); };
    line->ServerFound = [this](const std::string& name) { ServerFound(name); };
    line->Open(GetServer());
}

void SimulatorEnd::CloseLine() {
    line->Close();
    line->Up = nullptr;
    line->Lost = nullptr;
    line->Said = nullptr;
    line->ServerFound = nullptr;
}

void SimulatorEnd::Lose() {
    if (!isUp) return;
    Hear({});
    isUp = false;
    Disconnected();
}

// A handler may serve the loop: what is said meanwhile is told after what was said before.
void SimulatorEnd::Hear(const SimulatorInput& said) {
    for (const InputChange& change : ChangesBetween(held, said))
        untold.push_back([this, change, active = said.Active] { Tell(change, active); });
    if (!said.Repeat.empty())
        untold.push_back([this, said] { FSKeyDown(true, said.Active, said.Repeat, SequenceOf(said.Keys)); });
    held = said;
    while (!untold.empty()) {
        const auto tell = std::move(untold.front());
        untold.pop_front();
        tell();
    }
}

void SimulatorEnd::Tell(const InputChange& change, bool active) {
    const auto& [kind, name] = change.Input;
    const bool isDown = change.Move == InputMove::Down;
    isDown ? heldAsTold.Press(change.Input) : heldAsTold.Release(change.Input);
    telling = change;
    if (kind == InputKind::Key)
        isDown ? FSKeyDown(false, active, name, change.Sequence) : FSKeyUp(0, 0, name, "");
    else
        isDown ? FSJoyDown(0, 0, name, "") : FSJoyUp(0, 0, name, "");
    telling.reset();
    InputHandled();
}

}  // namespace orvelle::ends
