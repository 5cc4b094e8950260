// The light that tells whether the voice engine runs, is on its way there, or stands still.
#pragma once

#include <memory>

#include "deck/fields/SignalLight.h"

namespace orvelle {
class EmbeddedVoiceEngine;
}  // namespace orvelle

namespace orvelle::deck {

class EngineLight : public SignalLight {
public:
    EngineLight(const QString& name, EmbeddedVoiceEngine& voiceEngine);

private:
    void ShowState();

    EmbeddedVoiceEngine& engine;
    std::shared_ptr<void> watch;
};

}  // namespace orvelle::deck
