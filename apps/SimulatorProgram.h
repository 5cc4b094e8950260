// The simulator's program on this computer: the set-up that it made with the broker that it brings, or the one that the
// computer has joined, and what it is there: the far sides of both links, which devices and hands act on. Takes up
// changes of the set-up's files while it runs.
#pragma once

#include <filesystem>
#include <list>
#include <memory>
#include <optional>
#include <string>

#include "adapters/linux/BrokerChild.h"
#include "adapters/linux/FileWatch.h"
#include "adapters/mqtt/BrokerNetworkSide.h"
#include "adapters/mqtt/BrokerSimulatorSide.h"
#include "adapters/mqtt/Expulsion.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "platform/EventLoop.h"

namespace orvelle {

class SimulatorProgram {
public:
    // `dataFolder` keeps the set-up; `port` is where a new broker listens.
    SimulatorProgram(EventLoop& eventLoop, const std::filesystem::path& dataFolder, int port);

    // Makes the set-up where the computer is in none, starts its broker, and goes there.
    void Open();

    // A sentence for the user.
    Event<const std::string&> Told;

    mqtt::OwnSetUp SetUp;
    mqtt::SimulatorAtBroker AtBroker;
    mqtt::BrokerSimulatorSide Simulator{AtBroker};
    mqtt::BrokerNetworkSide Network{AtBroker};

private:
    void TakeUpSetUp();
    void TakeUpKeys();
    void Expel(int identity);
    bool BringsBroker() const { return broker.has_value(); }

    EventLoop& loop;
    const int newPort;
    std::optional<mqtt::SetUpSetting> current;
    mqtt::ComputerKeys keys;
    std::optional<linux::BrokerChild> broker;
    std::list<mqtt::Expulsion> expulsions;
    std::optional<linux::FileWatch> setUpWatch, keysWatch;
};

}  // namespace orvelle
