// What the outside is to the panel: the two links, the voice engine, the mixers and the voice programs, each by the
// medium or device that serves now. Everything is embedded here so far, and the far sides are for the flight deck.
#pragma once

#include <string>
#include <vector>

#include "adapters/embedded/SetUp.h"
#include "adapters/ends/FrameworkEnd.h"
#include "adapters/ends/MicrophoneGuard.h"
#include "adapters/ends/SimulatorEnd.h"

namespace orvelle {

class Outside {
public:
    // `controlValues` keeps the links' own values. `thisComputer` lists the names of this computer. `realTeamSpeak` is
    // TeamSpeak's own remote control, null where this computer has none. All outlive this object.
    Outside(EventLoop& loop, ControlValues& controlValues, std::vector<std::string> thisComputer,
            TeamSpeakRemote* realTeamSpeak);

    embedded::SetUp Practice;

private:
    // Every server's name leads to the embedded set-up.
    ends::LineTable<SimulatorLine> simulatorLines{Practice.SimulatorLink};
    ends::LineTable<FrameworkLine> frameworkLines{Practice.NetworkLink};

public:
    ends::SimulatorEnd Velmarc;
    ends::FrameworkEnd Tessaly;
    ends::MicrophoneGuard VVL;
    TeamSpeakRemote& TSRemote;
};

}  // namespace orvelle
