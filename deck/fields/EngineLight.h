// The light that tells whether the voice engine runs, is on its way there, or stands still.
#pragma once

#include "deck/fields/SignalLight.h"
#include "platform/Ticket.h"

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
    Ticket watch;
};

}  // namespace orvelle::deck
