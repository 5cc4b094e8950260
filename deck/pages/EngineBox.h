// The voice engine as a whole: whether it runs, what it was told, and how its starts go.
#pragma once

#include <vector>

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QComboBox;

namespace orvelle {
class VoiceEngineSide;
class VoiceEngineView;
}  // namespace orvelle

namespace orvelle::deck {

class Readout;
class SignalLight;

class EngineBox : public Section {
public:
    // How starts go is for the engine that is played, the rest is of the one that serves.
    EngineBox(VoiceEngineSide& playedEngine, VoiceEngineView& servingEngine);

private:
    void ShowAudio();
    void ShowState();

    VoiceEngineSide& played;
    const VoiceEngineView& engine;
    SignalLight* audio;
    Readout* squelch;
    QComboBox* starts;
    std::vector<QWidget*> playing;  // what plays
    Ticket watch;
};

}  // namespace orvelle::deck
