#include "adapters/shared/HeldInputs.h"

#include <algorithm>

namespace orvelle {

namespace {

void Append(std::string& sequence, const std::string& key) {
    if (!sequence.empty()) sequence += "+";
    sequence += key;
}

HeldInputs HeldAt(const SimulatorInput& moment) {
    HeldInputs held;
    for (const std::string& key : moment.Keys) held.Press({InputKind::Key, key});
    for (const std::string& button : moment.Buttons) held.Press({InputKind::Button, button});
    return held;
}

}  // namespace

std::string SequenceOf(const std::vector<std::string>& keys) {
    std::string sequence;
    for (const std::string& key : keys) Append(sequence, key);
    return sequence;
}

bool HeldInputs::Press(const HeldInput& input) {
    if (input.Name.empty() || IsHeld(input)) return false;
    held.push_back(input);
    return true;
}

bool HeldInputs::Release(const HeldInput& input) { return std::erase(held, input) != 0; }

bool HeldInputs::IsHeld(const HeldInput& input) const { return std::ranges::find(held, input) != held.end(); }

std::vector<std::string> HeldInputs::NamesOf(InputKind kind) const {
    std::vector<std::string> names;
    for (const HeldInput& input : held)
        if (input.Kind == kind) names.push_back(input.Name);
    return names;
}

std::vector<InputChange> ChangesBetween(const SimulatorInput& before, const SimulatorInput& after) {
    const HeldInputs old = HeldAt(before);
    const HeldInputs now = HeldAt(after);
    std::vector<InputChange> changes;
    for (const HeldInput& input : old.InOrder())
        if (!now.IsHeld(input)) changes.push_back({InputMove::Up, input, ""});
    std::string sequence;
    for (const HeldInput& input : now.InOrder()) {
        const bool isKey = input.Kind == InputKind::Key;
        if (isKey) Append(sequence, input.Name);
        if (!old.IsHeld(input)) changes.push_back({InputMove::Down, input, isKey ? sequence : ""});
    }
    return changes;
}

}  // namespace orvelle
