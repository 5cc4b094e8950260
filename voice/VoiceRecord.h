// What a radio is tuned to, and the sounds that tell of a change.
#pragma once

#include <string>

#include "platform/Types.h"
#include "platform/VoiceSoftware.h"

namespace orvelle {

struct VoiceRecord {
    Long Software = NoVoice;
    std::string Server;
    std::string Channel;
    std::string LoginName;
    std::string Password;
};

constexpr const char* OnChannelSound = "Tessaly\\RADIO_ONCHANNEL.wav";
constexpr const char* NoChannelSound = "Tessaly\\RADIO_NOCHANNEL.wav";

}  // namespace orvelle
