#include "adapters/embedded/SetUp.h"

namespace orvelle::embedded {

SetUp::SetUp(EventLoop& loop)
    : SimulatorLink(loop),
      NetworkLink(loop),
      VVL(loop, Devices),
      VolumeControl(loop),
      VolumeControlHP(loop),
      TSRemote(loop),
      MediaPlayers(loop) {}

FarSides SetUp::Sides() {
    return {.Simulator = &SimulatorLink,
            .SimulatorLink = &SimulatorLink,
            .Network = &NetworkLink,
            .NetworkLink = &NetworkLink,
            .VoiceEngine = &VVL,
            .ServingEngine = &VVL,
            .HeadsetMixer = &VolumeControl,
            .SpeakersMixer = &VolumeControlHP,
            .TeamSpeak = &TSRemote,
            .Devices = &Devices};
}

}  // namespace orvelle::embedded
