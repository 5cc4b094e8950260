#include "deck/fields/EngineLight.h"

#include "platform/sides/VoiceEngineView.h"

namespace orvelle::deck {

EngineLight::EngineLight(const QString& name, VoiceEngineView& voiceEngine)
    : SignalLight(name), engine(voiceEngine), watch(engine.Observe([this] { ShowState(); })) {
    ShowState();
}

void EngineLight::ShowState() {
    if (engine.IsRunning())
        Show(Sign::Good, "Running");
    else if (engine.IsStarting())
        Show(Sign::Waiting, "Starting");
    else
        Show(Sign::Off, "Stopped");
}

}  // namespace orvelle::deck
