// The light that tells whether the voice engine runs, is on its way there, or stands still.
#pragma once

#include "deck/fields/SignalLight.h"
#include "platform/Ticket.h"

namespace orvelle {
class VoiceEngineSide;
}  // namespace orvelle

namespace orvelle::deck {

class EngineLight : public SignalLight {
public:
    EngineLight(const QString& name, VoiceEngineSide& voiceEngine);

private:
    void ShowState();

    VoiceEngineSide& engine;
    Ticket watch;
};

}  // namespace orvelle::deck
