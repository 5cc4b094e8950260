// The simulator's keyboard and joysticks, and what push-to-talk does with them: below them the lights of the voice
// engine tell in which rooms the user talks, and another one which keys the panel holds down on this computer, so that
// a held key and its effect are seen at once.
#pragma once

#include <array>

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

namespace orvelle {
class HeldKeysSide;
class SimulatorSide;
class VoiceEngineView;
}  // namespace orvelle

namespace orvelle::deck {

class SignalLight;

class InputsBox : public Section {
public:
    // Without a voice engine (null) it has no lights, without held keys (null) none for them.
    InputsBox(SimulatorSide& simulator, VoiceEngineView* voiceEngine, HeldKeysSide* heldKeys);

private:
    void AddEngine();
    void AddHeldKeys();
    void ShowRooms();
    void ShowHeldKeys();

    VoiceEngineView* engine;
    HeldKeysSide* keys;
    std::array<SignalLight*, 3> talks{};  // by room
    SignalLight* holds = nullptr;
    Ticket engineWatch;
    Ticket keysWatch;
};

}  // namespace orvelle::deck
