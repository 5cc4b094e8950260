#include "deck/fields/EngineLight.h"

#include "adapters/embedded/VoiceEngine.h"

namespace orvelle::deck {

EngineLight::EngineLight(const QString& name, EmbeddedVoiceEngine& voiceEngine)
    : SignalLight(name), engine(voiceEngine), watch(engine.Changed.Observe([this] { ShowState(); })) {
    ShowState();
}

void EngineLight::ShowState() {
    if (engine.Running())
        Show(Sign::Good, "Running");
    else if (engine.Starting())
        Show(Sign::Waiting, "Starting");
    else
        Show(Sign::Off, "Stopped");
}

}  // namespace orvelle::deck
