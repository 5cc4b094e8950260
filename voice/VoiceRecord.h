// What a radio is tuned to, and the codes of the voice software.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

enum VoiceSoftware : Long {
    NoVoice = 0,
    RogerWilco = 1,
    TeamSpeakHost = 2,  // the server is a host
    VatsimVoice = 3,
    TeamSpeakUrl = 4,  // the server is the head of a URL
    VoiceAtis = 5,     // never a candidate
};

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
