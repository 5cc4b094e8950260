// The audio devices of the voice engine that serves: what the panel set on each, and whether it fails.
#pragma once

#include <array>

#include "deck/fields/Section.h"
#include "platform/Ticket.h"

class QCheckBox;

namespace orvelle {
class AudioDevices;
class VoiceEngineSide;
class VoiceEngineView;
}  // namespace orvelle

namespace orvelle::deck {

class Readout;

class DevicesBox : public Section {
public:
    // A device can be made to fail where the engine is played.
    DevicesBox(VoiceEngineSide& playedEngine, VoiceEngineView& servingEngine, const AudioDevices& audioDevices);

private:
    void ShowState();

    VoiceEngineSide& played;
    const VoiceEngineView& engine;
    const AudioDevices& devices;
    QCheckBox* microphoneFails;
    Readout* microphone;
    std::array<QCheckBox*, 2> outputFails;
    std::array<Readout*, 2> outputs;
    std::array<Readout*, 2> levels;
    Ticket watch;
};

}  // namespace orvelle::deck
