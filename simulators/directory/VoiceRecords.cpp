#include "simulators/directory/VoiceRecords.h"

#include "simulators/directory/Channels.h"
#include "simulators/directory/Placeholders.h"

namespace orvelle::directory {

RadioVoiceSetting VoiceRecordOf(const Choice& choice, int kilohertz, const std::string& callsign,
                                const Directory* directory, const OwnLogins& logins) {
    if (!choice.Voice || directory == nullptr) return {};
    const auto server = directory->Servers.find(choice.Voice->Server);
    if (server == directory->Servers.end()) return {};
    const int channel = ChannelOfKilohertz(kilohertz).value_or(kilohertz);
    RadioVoiceSetting record = FilledRecord(server->second, *choice.Voice, {channel, choice.Station, callsign});
    if (const OwnLogin* const own = logins.Find(record.Server)) {
        if (!own->Login.empty()) record.Login = own->Login;
        record.Password = own->Password;
    }
    return record;
}

}  // namespace orvelle::directory
