#include "apps/voice/VoiceModule.h"

#include "apps/voice/VoiceEngine.h"

orvelle::HeardVoiceEngine* NewOrvelleVoiceEngine(orvelle::EventLoop& loop, orvelle::VoiceDevices& devices,
                                                 orvelle::VoiceDialogs& dialogs, const std::filesystem::path& folder) {
    return new orvelle::VoiceEngine(loop, devices, dialogs, folder);
}
