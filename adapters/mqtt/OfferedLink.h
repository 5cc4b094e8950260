// A link as the simulator's program offers it to the panels of the set-up: the switch of its far side. The way there is
// as slow as the network is, so a delay can't be set.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/mqtt/SimulatorAtBroker.h"
#include "platform/sides/LinkSide.h"

namespace orvelle::mqtt {

class OfferedLink : public LinkSide {
public:
    void SetLink(LinkState state) override { program.Offer(link, state == LinkState::Up); }
    LinkState Link() const override { return program.Offers(link) ? LinkState::Up : LinkState::Down; }
    // Told to all panels that are there.
    bool IsUp() const override { return Link() == LinkState::Up && program.IsThere(); }
    std::string Server() const override { return program.Host(); }
    void SeeServer(const std::string& name) override { seen.push_back(name); }
    const std::vector<std::string>& ServersSeen() const override { return seen; }
    void SetDelay(Long) override {}
    Long Delay() const override { return 0; }
    Ticket Observe(std::function<void()> observer) override { return program.Observe(std::move(observer)); }

protected:
    OfferedLink(SimulatorAtBroker& simulatorProgram, bool PresenceSetting::*offer)
        : program(simulatorProgram), link(offer) {}

    SimulatorAtBroker& program;

private:
    bool PresenceSetting::*const link;
    std::vector<std::string> seen;
};

}  // namespace orvelle::mqtt
