#include "apps/VoiceEngines.h"

#include <utility>

namespace orvelle {

VoiceEngines::VoiceEngines(EventLoop& eventLoop, const SoundServer& soundServer, embedded::SetUp& practiceSetUp,
                           VoiceDialogs& voiceDialogs, std::filesystem::path ownFolder, LoadModule loadModule)
    : loop(eventLoop),
      sound(soundServer),
      practice(practiceSetUp),
      dialogs(voiceDialogs),
      folder(std::move(ownFolder)),
      load(std::move(loadModule)),
      devices(practice.Devices, sound.Devices) {}

ends::ServingEngine VoiceEngines::Choose() {
    HeardVoiceEngine* const engine = sound.Devices.AreKnown() ? Heard() : nullptr;
    if (!engine) {
        practice.VVL.StepForward();
        return ends::ServingEngine::Of(practice.VVL);
    }
    practice.VVL.StandBack();
    return ends::ServingEngine::Of(*engine);
}

HeardVoiceEngine* VoiceEngines::Heard() {
    if (heard || isMissing) return heard.get();
    std::string why;
    auto* const make = load(why);
    if (make == nullptr) {
        isMissing = true;
        Told("The voice engine only practises, and nobody hears you by it: " + why + ".");
        return nullptr;
    }
    heard.reset(make(loop, devices, dialogs, folder));
    heard->Told = [this](const std::string& sentence) { Told(sentence); };
    return heard.get();
}

}  // namespace orvelle
