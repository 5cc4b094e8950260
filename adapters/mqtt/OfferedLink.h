// A link as the simulator's program offers it to the panels of the set-up: the switch of its far side. Which servers
// there are, and how slow the way is, the network tells by itself.
#pragma once

#include <functional>
#include <string>
#include <utility>

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
    PlayedLinkSide* Played() override { return nullptr; }
    // The computer that serves it, of all that offer it; 0 for none.
    int ServedBy() const { return program.ServedBy(link); }
    Ticket Observe(std::function<void()> observer) override { return program.Observe(std::move(observer)); }

protected:
    OfferedLink(SimulatorAtBroker& simulatorProgram, bool PresenceSetting::*offer)
        : program(simulatorProgram), link(offer) {}

    SimulatorAtBroker& program;

private:
    bool PresenceSetting::*const link;
};

}  // namespace orvelle::mqtt
