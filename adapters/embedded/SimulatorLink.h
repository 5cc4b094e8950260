// The simulator link inside this process: the panel's near end opens it as its line, and whoever plays the simulator's
// computer acts on its far side. Every server name leads there. What is done on the far side takes effect at once over
// there and reaches the panel after the delay. Main thread only; nothing fails towards the caller.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "adapters/embedded/PlayedLink.h"
#include "adapters/shared/SimulatorDesk.h"
#include "platform/SimulatorLine.h"

namespace orvelle::embedded {

class SimulatorLink : public SimulatorLine, public SimulatorDesk, public PlayedLink {
public:
    explicit SimulatorLink(EventLoop& loop) : PlayedLink(loop) {}

    // The line.
    void Open(const std::string& server) override { OpenLink(server); }
    void Close() override { CloseLink(); }
    void SayReady() override { TakeReady(); }
    void SaySound(const std::string& path) override;
    SimulatorComputer FarComputer() override { return Computer(); }

    void SetLink(LinkState state) override;  // what is held goes with the link
    Ticket Observe(std::function<void()> observer) override { return PlayedLink::Observe(std::move(observer)); }

    bool TakesInput() const override { return Link() == LinkState::Up; }

private:
    void RaiseUp() override;
    void RaiseLost() override { Lost(); }
    void RaiseServerFound(const std::string& name) override { ServerFound(name); }
    void SayInput(const SimulatorInput& input) override;
    void MarkInputChange() override { MarkChange(); }
};

}  // namespace orvelle::embedded
