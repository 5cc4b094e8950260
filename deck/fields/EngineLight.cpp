#include "deck/fields/EngineLight.h"

#include "adapters/embedded/VoiceEngine.h"

namespace orvelle::deck {

EngineLight::EngineLight(const QString& name, EmbeddedVoiceEngine& voiceEngine)
    : SignalLight(name), engine(voiceEngine), watch(engine.Changed.Observe([this] { ShowState(); })) {
    ShowState();
}

void EngineLight::ShowState() {
    if (engine.Running())
        Show(Signal::On, "Running");
    else if (engine.Starting())
        Show(Signal::Waiting, "Starting");
    else
        Show(Signal::Off, "Stopped");
}

}  // namespace orvelle::deck
