// The keys and joystick buttons that are down, in the order in which they went down, and what lies between two such
// moments. The far side of a simulator link keeps one of what is pressed there; the near end asks what has changed, and
// what it must take back when the link is lost. Names are those that the panel shows ("Right Ctrl",
// "Stick.Button 3"); an empty one is nothing, and nothing fails.
#pragma once

#include <string>
#include <vector>

#include "platform/SimulatorInput.h"

namespace orvelle {

enum class InputKind { Key, Button };

struct HeldInput {
    InputKind Kind;
    std::string Name;
    bool operator==(const HeldInput&) const = default;
};

// Keys joined by "+".
std::string SequenceOf(const std::vector<std::string>& keys);

class HeldInputs {
public:
    // Whether it was not held before.
    bool Press(const HeldInput& input);
    // Whether it was held.
    bool Release(const HeldInput& input);
    bool IsHeld(const HeldInput& input) const;
    void Clear() { held.clear(); }

    // Keys and buttons as they went down; Keys and Buttons are its two parts.
    const std::vector<HeldInput>& InOrder() const { return held; }
    std::vector<std::string> Keys() const { return NamesOf(InputKind::Key); }
    std::vector<std::string> Buttons() const { return NamesOf(InputKind::Button); }
    std::string Sequence() const { return SequenceOf(Keys()); }

private:
    std::vector<std::string> NamesOf(InputKind kind) const;

    std::vector<HeldInput> held;
};

enum class InputMove { Down, Up };

struct InputChange {
    InputMove Move;
    HeldInput Input;
    std::string Sequence;  // of a key that goes down: the keys held up to it, itself the last, joined by "+"; else ""
    bool operator==(const InputChange&) const = default;
};

// What has changed, in the order in which it is to be told: what is gone, as up, in the order of `before`, then what is
// new, as down, in the order of `after`, keys before buttons in both. A name that a list bears twice counts once, where
// it stands first; another order of the same names is no change.
std::vector<InputChange> ChangesBetween(const SimulatorInput& before, const SimulatorInput& after);

}  // namespace orvelle
