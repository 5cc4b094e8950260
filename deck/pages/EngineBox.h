// The voice engine as a whole: whether it runs, what it was told, and how its starts go.
#pragma once

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QComboBox;

namespace orvelle {
class EmbeddedVoiceEngine;
}  // namespace orvelle

namespace orvelle::deck {

class Readout;
class SignalLight;

class EngineBox : public Section {
public:
    explicit EngineBox(EmbeddedVoiceEngine& voiceEngine);

private:
    void ShowState();

    EmbeddedVoiceEngine& engine;
    SignalLight* audio;
    Readout* squelch;
    QComboBox* starts;
    Ticket watch;
};

}  // namespace orvelle::deck
