// What the test and its library of TeamSpeak's functions share: results to give, and calls that were made.
#pragma once

#include <string>
#include <vector>

#include "platform/TSRemote.h"

namespace orvelle {

struct PlayedTeamSpeak {
    Integer Connect = 0;
    int ServerInfoFailures = 0;  // before it answers
    std::string Address = std::string(30, ' ');
    Integer ChannelInfo = 0;
    Integer SwitchChannel = 0;
    std::vector<std::string> Calls;
};

// The library's one instance, by this C function.
constexpr const char* PlayedTeamSpeakFunction = "PlayedTeamSpeakOfLibrary";

}  // namespace orvelle
