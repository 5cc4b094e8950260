// Serving the set-up that this computer has made: its broker, brought or named, its announcement on the network, and
// what becomes of computers that are added or removed meanwhile, also by another process. A part of the simulator's
// program; events come from the loop, their handlers don't end this object.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adapters/avahi/ServiceAnnouncement.h"
#include "adapters/linux/BrokerChild.h"
#include "adapters/linux/FileWatch.h"
#include "adapters/mqtt/ClientsEnd.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "apps/SimulatorCommand.h"

namespace orvelle {

class OwnServing {
public:
    // `made` outlives this object.
    OwnServing(EventLoop& eventLoop, const mqtt::OwnSetUp& made, const SimulatorCommand& command);

    // `firstName` is the set-up's where it is made now. "" for success, else one sentence.
    std::string Open(const std::string& firstName);

    bool BringsBroker() const { return !command.Broker; }
    const std::optional<mqtt::OwnSetting>& Setting() const { return setting; }
    // As the set-up knows this computer, with the way to the broker.
    const mqtt::SetUpSetting& ThisComputer() const { return own; }

    Event<> Served;                    // connections are taken, for the first time or again
    Event<> Changed;                   // a computer was added or removed, or the set-up has another name
    Event<const std::string&> Told;    // a sentence for the user
    Event<const std::string&> GaveUp;  // one sentence: the broker can't be had

private:
    void Announce();
    void TakeUp();
    void CutOff();

    EventLoop& loop;
    const mqtt::OwnSetUp& setUp;
    const SimulatorCommand command;
    linux::BrokerChild broker;
    std::optional<avahi::ServiceAnnouncement> announcement;
    std::optional<linux::FileWatch> watch;
    std::optional<mqtt::OwnSetting> setting;
    mqtt::SetUpSetting own;
    std::vector<int> removed;  // and not cut off yet
    std::vector<std::unique_ptr<mqtt::ClientsEnd>> ending;
    std::string toldLast;
    Ticket servedElsewhere;
};

}  // namespace orvelle
