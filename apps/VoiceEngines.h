// The panel's two voice engines, and which of them serves: the one that is heard, where there is a sound server and its
// module can be loaded, else the embedded one, by which nobody is heard. Held by the outside.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "adapters/embedded/SetUp.h"
#include "adapters/ends/VoiceEngineEnd.h"
#include "apps/PanelVoiceDevices.h"
#include "apps/SoundServer.h"
#include "apps/voice/VoiceModule.h"

namespace orvelle {

class VoiceEngines {
public:
    // The module's function; null where that can't be had, and then a part of a sentence.
    using LoadModule = std::function<NewOrvelleVoiceEngineFunction*(std::string& why)>;

    // `ownFolder` is for what the heard engine keeps. All outlive this object.
    VoiceEngines(EventLoop& eventLoop, const SoundServer& soundServer, embedded::SetUp& practiceSetUp,
                 VoiceDialogs& voiceDialogs, std::filesystem::path ownFolder, LoadModule loadModule);

    // Asked before each start and calibration. The module is loaded when its engine is to serve for the first time.
    ends::ServingEngine Choose();

    // A sentence for the user that needs no answer: once, why nobody is heard, and what the heard engine tells.
    Event<const std::string&> Told;

private:
    HeardVoiceEngine* Heard();

    EventLoop& loop;
    const SoundServer& sound;
    embedded::SetUp& practice;
    VoiceDialogs& dialogs;
    const std::filesystem::path folder;
    const LoadModule load;
    PanelVoiceDevices devices;
    bool isMissing = false;  // the module, which was told
    std::unique_ptr<HeardVoiceEngine> heard;
};

}  // namespace orvelle
