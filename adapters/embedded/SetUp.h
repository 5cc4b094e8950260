// A whole set-up inside the panel's process, for practising: the two links, the voice engine, the mixers and the
// stand-ins of the voice programs. The program makes one, passes its members to the panel as parts of its Platform and
// as lines of its links, and hands their far sides to whoever plays them. It must outlive all of these.
#pragma once

#include "adapters/embedded/MediaPlayers.h"
#include "adapters/embedded/Mixer.h"
#include "adapters/embedded/NetworkLink.h"
#include "adapters/embedded/SimulatorLink.h"
#include "adapters/embedded/SoundDevices.h"
#include "adapters/embedded/TeamSpeak.h"
#include "adapters/embedded/VoiceEngine.h"
#include "platform/sides/FarSides.h"

namespace orvelle::embedded {

class SetUp {
public:
    explicit SetUp(EventLoop& loop);

    embedded::SimulatorLink SimulatorLink;
    embedded::NetworkLink NetworkLink;
    SoundDevices Devices;
    VoiceEngine VVL;
    Mixer VolumeControl;
    Mixer VolumeControlHP;
    TeamSpeak TSRemote;
    embedded::MediaPlayers MediaPlayers;

    // All that are played here; whom the settings' trouble goes to is left for the program to fill in.
    FarSides Sides();
};

}  // namespace orvelle::embedded
