// What a radio is tuned to.
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

}  // namespace orvelle
