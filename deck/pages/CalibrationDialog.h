// The voice engine's own dialogue for voice test and calibration. It runs until the user answers, as the engine's
// call does: OK gives the two squelch values, 0 to 100, Cancel none.
#pragma once

#include <optional>

#include "platform/AudioDevices.h"
#include "platform/sides/VoiceEngineSide.h"

class QWidget;

namespace orvelle::deck {

// The devices by the engine's numbers, -1 the default device. The values at first are those that the engine has. A null
// parent leaves the place of the dialogue to the system.
std::optional<Squelch> AskCalibration(QWidget* parent, const VoiceEngineSide& engine, const AudioDevices& devices,
                                      Long inputDevice, Long outputDevice);

}  // namespace orvelle::deck
