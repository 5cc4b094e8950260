// The simulator link over a broker: what the simulator's program of the lowest identity says is held. The line is up
// while the connection stands and such a program is there. Silence for 400 ms while something is held counts as all of
// it let go, whatever the reason.
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "adapters/mqtt/Brokers.h"
#include "platform/SimulatorLine.h"

namespace orvelle::mqtt {

class BrokerSimulatorLine : public SimulatorLine {
public:
    BrokerSimulatorLine(EventLoop& eventLoop, Brokers& setUpBrokers) : loop(eventLoop), brokers(setUpBrokers) {}

    void Open(const std::string& server) override;
    void Close() override;
    void SayReady() override {}  // nobody there waits for it
    void SaySound(const std::string& path) override;
    SimulatorComputer FarComputer() override;

private:
    void Leave();
    void Review();
    void TellFound();
    void Hear(const Topic& topic, const std::string& payload);
    bool HoldsNothing() const { return held.Keys.empty() && held.Buttons.empty(); }
    void AwaitSilence(std::chrono::milliseconds left);
    void LetGo();

    EventLoop& loop;
    Brokers& brokers;
    std::optional<std::string> wanted;  // the server's name while open
    std::shared_ptr<PanelAtBroker> at;  // null while closed
    int server = 0;                     // the identity of the program that serves, 0 while the line is down
    SimulatorInput held;
    std::chrono::steady_clock::time_point heardAt;  // what is held
    bool isSilenceAwaited = false;
    Ticket moved, found, changed, heard, first, silence;
};

}  // namespace orvelle::mqtt
