// The panels of the main window by their numbers, the index of `Panels`. The overview is always there; the tree shows
// each of the others in its place.
#pragma once

#include "platform/Types.h"

namespace orvelle {

enum PanelNumber : Long {
    OverviewPanel,
    SimulatorLinkPanel,
    RogerWilcoPanel,
    TeamSpeakPanel,
    JoyToKeyPanel,
    VatsimVoicePanel,
    VolumesPanel,
    KeyToKeyPanel,
    FrameworkLinkPanel,
    OptionsPanel,
    VoiceAtisPanel,
    ExtraPanel,  // of the framework
    VatsimKeysPanel,
};

constexpr Long PanelCount = VatsimKeysPanel + 1;

}  // namespace orvelle
