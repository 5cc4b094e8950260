// Looks on at a set-up from its broker: which programs are there, which panel holds a role, as every member of the
// set-up counts it, and what is held on the simulator's computer. It is no member itself and ends no other connection,
// but comes with the key of the simulator's computer, and can so set the session for its program by hand.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "adapters/mqtt/BrokerConnection.h"
#include "adapters/mqtt/Presences.h"
#include "adapters/mqtt/SetUpFile.h"
#include "platform/SimulatorInput.h"

namespace orvelle {

class SetUpWatch {
public:
    // As the simulator's computer knows its set-up. Tried until the broker can be had.
    SetUpWatch(EventLoop& loop, const mqtt::SetUpSetting& setUp);

    // The one that orvelle-sim keeps in that folder; none until it has made it.
    static std::unique_ptr<SetUpWatch> OfMade(EventLoop& loop, const std::filesystem::path& folder);

    // The program of the simulator's computer is there and offers both links.
    bool SimulatorServes() const;
    void SetSession(const SessionSetting& session);
    // Each message, from the loop.
    Event<const SimulatorInput&> InputHeard;

    // The beats of a computer's panel in its run so far; 0 while it is not there.
    Long PanelBeats(int identity) const;
    // The computers whose panels are there and have a record of that role; ascending.
    std::vector<int> Holders(const std::string& role) const;
    // Whether the broker keeps a record of that computer, be it there or not.
    bool KeepsRecordOf(int identity) const;

private:
    void Hear(const std::string& text, const std::string& payload);

    const int simulator;  // the computer's identity
    mqtt::BrokerConnection connection;
    mqtt::Presences presences;
    std::map<Long, std::string> roles;  // of the records that the broker keeps, by their ids
};

}  // namespace orvelle
