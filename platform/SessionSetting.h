// The user's session on the network, whole: what a line of the framework link says after each change.
#pragma once

#include <array>
#include <string>

#include "platform/Types.h"
#include "platform/VoiceSoftware.h"

namespace orvelle {

// What one radio is tuned to.
struct RadioVoiceSetting {
    Long Software = NoVoice;
    std::string Server;
    std::string Channel;
    std::string Login;
    std::string Password;
    bool operator==(const RadioVoiceSetting&) const = default;
};

struct SessionSetting {
    Long Handle = 0;  // of each session another one, from 1; 0: no session
    Long Status = 0;  // ConnectedToMultiplayer of Tessaly.h, or another
    std::string Callsign;
    std::string Receive;                   // of RadioSelection.h
    std::string Transmit;                  // the same
    std::array<std::string, 2> Frequency;  // of COM1 and COM2, ready to show
    std::array<RadioVoiceSetting, 2> Voice;
    bool operator==(const SessionSetting&) const = default;
};

}  // namespace orvelle
