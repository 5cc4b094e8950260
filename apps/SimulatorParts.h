// Where the session of the simulator's computer comes from, joined: the simulators that are read here and which of them
// counts, the directories of voice channels in the user's order, the user's own logins and callsign, and the session
// that comes of it all. For the simulator's program, with or without a window. What goes wrong is told in sentences.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "apps/FlightGearSetting.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "simulators/SimulatorSession.h"
#include "simulators/directory/DirectoryAddresses.h"
#include "simulators/directory/DirectoryFolder.h"
#include "simulators/directory/DirectoryTopics.h"
#include "simulators/flightgear/FlightGearLine.h"
#include "simulators/xplane/XPlaneRref.h"

namespace orvelle {

class SimulatorParts {
public:
    // `data` is the data folder. Loop and network outlive this object.
    SimulatorParts(EventLoop& loop, const std::filesystem::path& data, std::uint16_t flightGearPort,
                   NetworkSide& network);

    // Of files that were read at the start, of simulators that can't be heard now, and of all that the loop brought
    // before this call; what comes later is told then.
    void TellTroubles();
    // Kept in the data folder.
    void SetOwnCallsign(const std::string& callsign);

    const std::filesystem::path DirectoryFiles;  // the folder of the user's own directories
    FlightGearSetting FlightGear;
    simulators::FlightGearLine FlightGearLine;
    simulators::XPlaneRref XPlane;
    simulators::SimulatorChoice Choice{{&FlightGearLine, &XPlane}};
    directory::OwnLogins Logins;  // whoever changes them tells the session
    directory::DirectoryFolder Folder;
    directory::DirectoryAddresses Addresses;
    directory::DirectoryTopics Topics;
    directory::Directories Directories{{&Folder, &Addresses, &Topics}};
    simulators::SimulatorSession Session;

    Event<> Changed;                 // what the session, the choice or the directories tell; up to 20 times a second
    Event<const std::string&> Told;  // a sentence for the user, once until it is over

private:
    void Tell(const std::string& sentence);
    void TellProblems();

    const std::filesystem::path callsignFile;
    std::vector<std::string> troubles;  // until TellTroubles, as nobody listens before
    bool isHeard = false;
    std::vector<std::string> toldProblems;
};

}  // namespace orvelle
