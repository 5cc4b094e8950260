// A simulator's program whose devices are played, over a broker that is there already: the real far sides of both
// links. Told are the sounds that panels ask for, and when it is there or no more.
//
//   simulator-at-host SETUP.JSON
//
//   press KEY | release KEY    on the simulator's computer
//   fly CALLSIGN FREQUENCY     a session, or another callsign and frequency of COM1 in the one that is
//   land                       ends the session

#include "adapters/mqtt/BrokerNetworkSide.h"
#include "adapters/mqtt/BrokerSimulatorSide.h"
#include "platform/Tessaly.h"
#include "tests/hosts/TellsAndAsks.h"

namespace orvelle::hosts {
namespace {

class SimulatorAtHost {
public:
    SimulatorAtHost(EventLoop& loop, const mqtt::SetUpSetting& setUp)
        : program(loop, [] { return mqtt::PresenceSetting{.Name = "SIMULATOR", .Address = "", .Desktop = "none"}; }),
          simulator(program),
          network(program),
          sounds(program.SoundAsked.Attach([](const std::string& name) { Tell("sound " + name); })),
          changes(program.Observe([this] { TellWhetherThere(); })) {
        simulator.SetLink(LinkState::Up);
        network.SetLink(LinkState::Up);
        program.Open(setUp);
    }

    void Take(std::istringstream& line) {
        std::string command, name, frequency;
        line >> command >> name >> frequency;
        if (command == "press") simulator.PressKey(name);
        if (command == "release") simulator.ReleaseKey(name);
        if (command == "land") network.EndSession();
        if (command == "fly") {
            network.SetCallsign(name);
            network.SetFrequency(0, frequency);
            network.SetStatus(ConnectedToMultiplayer);
            network.SetReceive(SelectsCom1);
            network.SetTransmit(SelectsCom1);
            network.SetVoice(0,
                             {.Software = RogerWilco, .Server = "srv1", .Channel = "ops", .Login = "", .Password = ""});
            if (network.Session().Handle == 0) network.StartSession();
        }
    }

private:
    void TellWhetherThere() {
        const bool isThere = program.IsThere();
        if (std::exchange(wasThere, isThere) != isThere) Tell(isThere ? "there" : "away");
    }

    mqtt::SimulatorAtBroker program;
    mqtt::BrokerSimulatorSide simulator;
    mqtt::BrokerNetworkSide network;
    bool wasThere = false;
    const Ticket sounds;
    const Ticket changes;
};

}  // namespace
}  // namespace orvelle::hosts

int main(int count, char** words) {
    return orvelle::hosts::Serve<orvelle::hosts::SimulatorAtHost>("simulator-at-host", count, words);
}
