// The far side of the simulator link over a broker, in the simulator's program: what devices or hands press here is
// held at all panels. Sounds that they ask for are told by the program.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "adapters/mqtt/OfferedLink.h"
#include "adapters/shared/SimulatorDesk.h"

namespace orvelle::mqtt {

class BrokerSimulatorSide : public SimulatorDesk, public OfferedLink {
public:
    explicit BrokerSimulatorSide(SimulatorAtBroker& simulatorProgram)
        : OfferedLink(simulatorProgram, &PresenceSetting::OffersSimulator),
          sounds(simulatorProgram.SoundAsked.Attach([this](const std::string& path) { TakeSound(path); })) {}

    bool TakesInput() const override { return Link() == LinkState::Up; }
    // What is held goes with the link.
    void SetLink(LinkState state) override {
        if (state == LinkState::Down) ReleaseAll();
        OfferedLink::SetLink(state);
    }
    Ticket Observe(std::function<void()> observer) override { return OfferedLink::Observe(std::move(observer)); }

private:
    void SayInput(const SimulatorInput& input) override { program.SayInput(input); }
    void MarkInputChange() override { program.MarkChange(); }

    const Ticket sounds;
};

}  // namespace orvelle::mqtt
