// The far sides that this computer plays for itself, for whoever acts on them. One that is not played here, as another
// computer or a real device is there in its place, is null.
#pragma once

namespace orvelle {

class AudioDevices;
class HeldKeysSide;
class JoinSide;
class LinkSide;
class MixerSide;
class NetworkSide;
class Notices;
class SimulatorSide;
class TeamSpeakSide;
class VoiceEngineSide;
class VoiceEngineView;

struct FarSides {
    SimulatorSide* Simulator = nullptr;
    LinkSide* SimulatorLink = nullptr;
    NetworkSide* Network = nullptr;
    LinkSide* NetworkLink = nullptr;
    VoiceEngineSide* VoiceEngine = nullptr;
    VoiceEngineView* ServingEngine = nullptr;  // there whenever the engine is: what it, or the real one, does
    MixerSide* HeadsetMixer = nullptr;
    MixerSide* SpeakersMixer = nullptr;
    TeamSpeakSide* TeamSpeak = nullptr;
    JoinSide* Join = nullptr;
    HeldKeysSide* HeldKeys = nullptr;     // there wherever the panel is
    AudioDevices* Devices = nullptr;      // there whenever the engine or a mixer is
    orvelle::Notices* Notices = nullptr;  // that the settings' trouble goes to
};

}  // namespace orvelle
