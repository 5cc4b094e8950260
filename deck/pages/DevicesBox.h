// The audio devices of the voice engine: what the panel set on each, and whether it fails.
#pragma once

#include <array>

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QCheckBox;

namespace orvelle {
class EmbeddedVoiceEngine;
}  // namespace orvelle

namespace orvelle::deck {

class Readout;

class DevicesBox : public Section {
public:
    explicit DevicesBox(EmbeddedVoiceEngine& voiceEngine);

private:
    void ShowState();

    EmbeddedVoiceEngine& engine;
    QCheckBox* microphoneFails;
    Readout* microphone;
    std::array<QCheckBox*, 2> outputFails;
    std::array<Readout*, 2> outputs;
    std::array<Readout*, 2> levels;
    Ticket watch;
};

}  // namespace orvelle::deck
