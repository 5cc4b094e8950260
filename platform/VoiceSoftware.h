// The codes of the voice software that serves a radio, as the network's voice record of the radio bears them.
#pragma once

#include "platform/Types.h"

namespace orvelle {

enum VoiceSoftware : Long {
    NoVoice = 0,
    RogerWilco = 1,
    TeamSpeakHost = 2,  // the server is a host
    VatsimVoice = 3,
    TeamSpeakUrl = 4,  // the server is the head of a URL
    VoiceAtis = 5,     // a recorded broadcast; the server is its source
};

}  // namespace orvelle
