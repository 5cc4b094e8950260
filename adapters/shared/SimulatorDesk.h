// What is pressed on the simulator's computer and what the panel asked of it, whichever medium carries it: the part of
// the simulator link's far side that every medium has alike. A medium says what is held after each change.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "adapters/shared/HeldInputs.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle {

class SimulatorDesk : public SimulatorSide {
public:
    void SetComputer(const SimulatorComputer& newComputer) override;
    const SimulatorComputer& Computer() const override { return computer; }
    bool PressKey(const std::string& key) override;
    void RepeatKey(const std::string& key) override;
    void ReleaseKey(const std::string& key) override;
    bool PressButton(const std::string& device, const std::string& button) override;
    void ReleaseButton(const std::string& device, const std::string& button) override;
    void ReleaseAll() override;
    std::string HeldSequence() const override { return held.Sequence(); }
    std::vector<std::string> HeldButtons() const override { return held.Buttons(); }
    void SetSimulatorActive(bool active) override;
    bool SimulatorActive() const override { return simulatorActive; }
    const std::vector<std::string>& Sounds() const override { return sounds; }
    std::size_t SoundsPlayed() const override { return soundsPlayed; }
    std::size_t TimesReady() const override { return timesReady; }

protected:
    bool HoldsNothing() const { return held.InOrder().empty(); }
    SimulatorInput Held() const { return {simulatorActive, held.Keys(), held.Buttons(), ""}; }
    void LetGo() { held.Clear(); }  // says nothing
    void SayHeld(const std::string& repeat = "");
    void TakeSound(const std::string& path);
    void TakeReady();

private:
    // The medium's: to say it, and to tell observers of a change.
    virtual void SayInput(const SimulatorInput& input) = 0;
    virtual void MarkInputChange() = 0;

    SimulatorComputer computer;
    bool simulatorActive = true;
    HeldInputs held;
    std::vector<std::string> sounds;
    std::size_t soundsPlayed = 0;
    std::size_t timesReady = 0;
};

}  // namespace orvelle
