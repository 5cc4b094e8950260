// The far side of the simulator link: what happens on the simulator's computer, and what the panel asks of it. Acted on
// by whatever is, or plays, that computer. Nothing fails; what is done while no link is wanted is told by the result.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/SimulatorLine.h"
#include "platform/Ticket.h"

namespace orvelle {

class SimulatorSide {
public:
    virtual ~SimulatorSide() = default;

    virtual void SetComputer(const SimulatorComputer& computer) = 0;
    virtual const SimulatorComputer& Computer() const = 0;

    // Whether there is a link to be pressed into. While not, nothing is held.
    virtual bool TakesInput() const = 0;
    // Keys by the names that the panel shows ("Ctrl", "A", "F8"). A key that is held already repeats. False, and
    // nothing is held, while no input is taken.
    virtual bool PressKey(const std::string& key) = 0;
    virtual void RepeatKey(const std::string& key) = 0;  // nothing unless it is held
    virtual void ReleaseKey(const std::string& key) = 0;
    // A button by its device and its name there: "Stick" and "Button 3" reach the panel as "Stick.Button 3".
    virtual bool PressButton(const std::string& device, const std::string& button) = 0;
    virtual void ReleaseButton(const std::string& device, const std::string& button) = 0;
    virtual void ReleaseAll() = 0;
    virtual std::string HeldSequence() const = 0;  // the keys held, joined by "+"
    virtual std::vector<std::string> HeldButtons() const = 0;
    // Whether the simulator is the active application over there.
    virtual void SetSimulatorActive(bool active) = 0;
    virtual bool SimulatorActive() const = 0;

    // What the panel asked for: sounds, oldest first, the last 200 of them, how many there were, and how often it said
    // that it is ready.
    virtual const std::vector<std::string>& Sounds() const = 0;
    virtual std::size_t SoundsPlayed() const = 0;
    virtual std::size_t TimesReady() const = 0;

    // Called from the loop after changes.
    [[nodiscard]] virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
