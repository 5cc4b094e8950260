// The audio devices of the voice engine: what the panel set on each, and whether it fails.
#pragma once

#include <array>

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QCheckBox;

namespace orvelle {
class AudioDevices;
class VoiceEngineSide;
}  // namespace orvelle

namespace orvelle::deck {

class Readout;

class DevicesBox : public Section {
public:
    DevicesBox(VoiceEngineSide& voiceEngine, const AudioDevices& audioDevices);

private:
    void ShowState();

    VoiceEngineSide& engine;
    const AudioDevices& devices;
    QCheckBox* microphoneFails;
    Readout* microphone;
    std::array<QCheckBox*, 2> outputFails;
    std::array<Readout*, 2> outputs;
    std::array<Readout*, 2> levels;
    Ticket watch;
};

}  // namespace orvelle::deck
