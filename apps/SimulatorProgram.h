// The program of the simulator's computer without its window: itself as a member of a set-up, either the one that this
// computer has made, which it serves with its broker, or the one of another computer that was joined. A window or
// devices act on its two far sides, and so does a simulator that is read here. Made on a loop of any kind.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "adapters/linux/FileWatch.h"
#include "adapters/linux/InstanceLock.h"
#include "adapters/mqtt/BrokerNetworkSide.h"
#include "adapters/mqtt/BrokerSimulatorSide.h"
#include "adapters/mqtt/SimulatorAtBroker.h"
#include "adapters/mqtt/TroubleTeller.h"
#include "apps/Devices.h"
#include "apps/OwnServing.h"
#include "apps/SimulatorParts.h"

namespace orvelle {

// Of the one that serves the command's set-up; where it has a window, the others ask beside it for that (WakeSocket.h).
linux::InstanceLock ServingLock(const SimulatorCommand& command);

class SimulatorProgram {
    EventLoop& loop;

public:
    SimulatorProgram(EventLoop& eventLoop, const SimulatorCommand& command);

    // "" for success, else one sentence: there is another one, or the set-up can't be had.
    std::string Open();
    // The orderly end: session, presence, broker.
    void Close();

    mqtt::OwnSetUp SetUp;
    mqtt::SimulatorAtBroker AtBroker;  // devices ask its SoundAsked
    mqtt::BrokerSimulatorSide Simulator{AtBroker};
    mqtt::BrokerNetworkSide Network{AtBroker};
    SimulatorParts Parts;  // whose session a simulator flies
    orvelle::Devices Devices;

    // The set-up that this computer has made, while it is served; nothing where another one's was joined.
    std::optional<mqtt::OwnSetting> Made() const { return own ? own->Setting() : std::nullopt; }
    // As the set-up knows this computer; nothing while it belongs to none.
    const std::optional<mqtt::SetUpSetting>& Member() const { return member; }
    // Why the set-up's broker can't be had, "" where it can.
    std::string Trouble() const;

    Event<const std::string&> Told;  // a sentence for the user
    Event<const std::string&> Ends;  // it can't go on, for the reason of that sentence
    Event<> SetUpChanged;            // another one, another name, a computer was added or removed
    Event<> DevicesChanged;

private:
    std::string ServeOwn();
    void GoTo(const mqtt::SetUpSetting& setUp);
    void TakeUpFile();
    bool IsOwnBrokersEnd(mqtt::BrokerTrouble why) const;
    void TellOfDevices();

    const SimulatorCommand command;
    linux::InstanceLock lock;
    std::optional<OwnServing> own;
    std::optional<mqtt::SetUpSetting> member;
    std::optional<linux::FileWatch> watch;
    std::string toldOfFile;
    std::optional<mqtt::TroubleTeller> troubles;  // of the member
    std::vector<std::string> toldOfDevices;
    Ticket reached, failed, heard;
};

}  // namespace orvelle
