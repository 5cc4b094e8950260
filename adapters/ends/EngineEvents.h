// A voice engine's events handed on by one that stands in front of it.
#pragma once

#include "platform/VoiceEngine.h"

namespace orvelle::ends {

// Whatever `from` raises `to` raises in the same moment, until that is ended.
void PassEvents(VoiceEngineControl& from, VoiceEngineControl& to);
void EndEvents(VoiceEngineControl& from);

}  // namespace orvelle::ends
