// The program of the simulator's computer without its window: the set-up that it makes, the broker that it brings, and
// itself as a member of it. A window or devices act on its two far sides. Made on a loop of any kind.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "adapters/avahi/ServiceAnnouncement.h"
#include "adapters/linux/BrokerChild.h"
#include "adapters/linux/FileWatch.h"
#include "adapters/linux/InstanceLock.h"
#include "adapters/mqtt/BrokerNetworkSide.h"
#include "adapters/mqtt/BrokerSimulatorSide.h"
#include "adapters/mqtt/ClientsEnd.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "adapters/mqtt/SimulatorAtBroker.h"
#include "apps/Devices.h"
#include "apps/SimulatorCommand.h"

namespace orvelle {

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
    orvelle::Devices Devices;

    const std::optional<mqtt::OwnSetting>& Setting() const { return setting; }

    Event<const std::string&> Told;  // a sentence for the user
    Event<const std::string&> Ends;  // it can't go on, for the reason of that sentence
    Event<> ComputersChanged;        // one was added or removed
    Event<> DevicesChanged;

private:
    void Announce();
    void TakeUp();
    void CutOff();
    void TellOfDevices();

    const SimulatorCommand command;
    linux::InstanceLock lock;
    linux::BrokerChild broker;
    std::optional<avahi::ServiceAnnouncement> announcement;
    std::optional<linux::FileWatch> watch;
    std::optional<mqtt::OwnSetting> setting;
    mqtt::SetUpSetting own;
    std::vector<int> removed;  // and not cut off yet
    std::vector<std::unique_ptr<mqtt::ClientsEnd>> ending;
    std::string toldLast;
    std::vector<std::string> toldOfDevices;
};

}  // namespace orvelle
