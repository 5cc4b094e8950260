// The voice engine as a whole: whether it runs, what it was told, and how its next start goes.
#pragma once

#include <memory>

#include "deck/Section.h"

class QComboBox;
class QPushButton;

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
    SignalLight* state;
    SignalLight* audio;
    Readout* squelch;
    QComboBox* nextStart;
    QPushButton* fail;
    std::shared_ptr<void> watch;
};

}  // namespace orvelle::deck
