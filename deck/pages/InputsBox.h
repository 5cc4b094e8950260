// The simulator's keyboard and joysticks, and what push-to-talk does with them: below them the lights of the voice
// engine tell in which rooms the user talks, so that a held key and its effect are seen at once.
#pragma once

#include <array>

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

namespace orvelle {
class EmbeddedVelmarc;
class EmbeddedVoiceEngine;
}  // namespace orvelle

namespace orvelle::deck {

class SignalLight;

class InputsBox : public Section {
public:
    InputsBox(EmbeddedVelmarc& velmarc, EmbeddedVoiceEngine& voiceEngine);

private:
    void ShowState();

    EmbeddedVoiceEngine& engine;
    std::array<SignalLight*, 3> talks;  // by room
    Ticket watch;
};

}  // namespace orvelle::deck
