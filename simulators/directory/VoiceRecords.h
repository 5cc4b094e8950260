// The voice record that a choice comes to: texts filled in, the user's own logins put in place of the directory's. An
// own password goes before that of the directory also where it is empty; an own login without a name keeps its name.
#pragma once

#include <string>

#include "platform/SessionSetting.h"
#include "simulators/directory/OwnLogins.h"
#include "simulators/directory/StationIndex.h"

namespace orvelle::directory {

// Software 0 where the choice has no entry, or its server is not in the directory.
RadioVoiceSetting VoiceRecordOf(const Choice& choice, int kilohertz, const std::string& callsign,
                                const Directory* directory, const OwnLogins& logins);

}  // namespace orvelle::directory
