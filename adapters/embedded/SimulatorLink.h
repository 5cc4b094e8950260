// The simulator link inside this process: the panel's near end opens it as its line, and whoever plays the simulator's
// computer acts on its far side. Every server name leads there. What is done on the far side takes effect at once over
// there and reaches the panel after the delay. Main thread only; nothing fails towards the caller.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/embedded/PlayedLink.h"
#include "adapters/shared/HeldInputs.h"
#include "platform/SimulatorLine.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle::embedded {

class SimulatorLink : public SimulatorLine, public SimulatorSide, public PlayedLink {
public:
    explicit SimulatorLink(EventLoop& loop) : PlayedLink(loop) {}

    // The line.
    void Open(const std::string& server) override { OpenLink(server); }
    void Close() override { CloseLink(); }
    void SayReady() override;
    void SaySound(const std::string& path) override;
    SimulatorComputer FarComputer() override { return computer; }

    void SetLink(LinkState state) override;  // what is held goes with the link
    Ticket Observe(std::function<void()> observer) override { return PlayedLink::Observe(std::move(observer)); }

    // The simulator's computer.
    void SetComputer(const SimulatorComputer& computer) override;
    const SimulatorComputer& Computer() const override { return computer; }
    bool TakesInput() const override { return Link() == LinkState::Up; }
    bool PressKey(const std::string& key) override;
    void RepeatKey(const std::string& key) override;
    void ReleaseKey(const std::string& key) override;
    bool PressButton(const std::string& device, const std::string& button) override;
    void ReleaseButton(const std::string& device, const std::string& button) override;
    void ReleaseAll() override;
    std::string HeldSequence() const override;
    std::vector<std::string> HeldButtons() const override;
    void SetSimulatorActive(bool active) override;
    bool SimulatorActive() const override { return simulatorActive; }
    const std::vector<std::string>& Sounds() const override { return sounds; }
    std::size_t SoundsPlayed() const override { return soundsPlayed; }
    std::size_t TimesReady() const override { return timesReady; }

private:
    void RaiseUp() override;
    void RaiseLost() override { Lost(); }
    void RaiseServerFound(const std::string& name) override { ServerFound(name); }
    void SayInput(const std::string& repeat = "");

    SimulatorComputer computer;
    bool simulatorActive = true;
    HeldInputs held;
    std::vector<std::string> sounds;
    std::size_t soundsPlayed = 0;
    std::size_t timesReady = 0;
};

}  // namespace orvelle::embedded
