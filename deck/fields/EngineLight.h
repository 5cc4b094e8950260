// The light that tells whether the voice engine runs, is on its way there, or stands still.
#pragma once

#include "deck/fields/SignalLight.h"
#include "platform/Ticket.h"

namespace orvelle {
class VoiceEngineView;
}  // namespace orvelle

namespace orvelle::deck {

class EngineLight : public SignalLight {
public:
    EngineLight(const QString& name, VoiceEngineView& voiceEngine);

private:
    void ShowState();

    VoiceEngineView& engine;
    Ticket watch;
};

}  // namespace orvelle::deck
