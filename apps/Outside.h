// What the outside is to the panel: the two links, the voice engine, the mixers and the voice programs, each by the
// medium or device that serves now. A computer that has joined no set-up practises with the embedded one, whose far
// sides are for the flight deck; one that has joined has its links over the set-up's broker, and looks for servers on
// the network.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "adapters/embedded/SetUp.h"
#include "adapters/ends/FrameworkEnd.h"
#include "adapters/ends/MicrophoneGuard.h"
#include "adapters/ends/MixerEnd.h"
#include "adapters/ends/SimulatorEnd.h"
#include "adapters/ends/VoiceEngineEnd.h"
#include "adapters/media/LoadedMediaPlayers.h"
#include "apps/AskedSounds.h"
#include "apps/SetUpModule.h"
#include "apps/SoundServer.h"
#include "apps/VoiceEngines.h"

namespace orvelle {

class Outside {
public:
    // `controlValues` keeps the links' own values. `realTeamSpeak` is TeamSpeak's own remote control, null where this
    // computer has none. `voiceFolder` is for what the voice engine that is heard keeps, and its dialogues are the
    // desktop's. All outlive this object.
    Outside(EventLoop& loop, ControlValues& controlValues, const ComputerNames& thisComputer,
            TeamSpeakRemote* realTeamSpeak, VoiceDialogs& voiceDialogs, const std::filesystem::path& voiceFolder);

    // From now on the links lead to that set-up's broker, or to the embedded set-up. Where what a set-up needs can't be
    // loaded, which is told, the panel goes on practising.
    void Join(const mqtt::SetUpSetting& setUp);
    void Practise();
    bool IsPractising() const { return !hasJoined; }
    // Acts once the panel can be loaded with this computer's audio devices, which it asks for at its load alone.
    void WhenSoundIsKnown(std::function<void()> act);
    // To be called at the program's end.
    void SayGoodbye() {
        if (setUpLinks) setUpLinks->SayGoodbye();
    }
    // No microphone is open and no thread of the voice engine runs any more. To be called at the program's end.
    void EndVoice();

    // A sentence for the user about what the links can't have for now; it needs no answer.
    Event<const std::string&> Told;

    embedded::SetUp Practice;

private:
    void ChooseLines();
    void ChooseMixers();
    ends::ServingEngine ChooseEngine();

    EventLoop& loop;
    const ComputerNames names;
    std::unique_ptr<SetUpLinks> setUpLinks;  // from the first set-up on that is joined
    bool hasJoined = false;
    // Every server's name leads to the one line or to the other.
    ends::LineTable<SimulatorLine> simulatorLines{Practice.SimulatorLink};
    ends::LineTable<FrameworkLine> frameworkLines{Practice.NetworkLink};
    // Asked for while practising alone; in a set-up the simulator's computer plays them.
    AskedSounds sounds{loop, Practice.SimulatorLink, OwnSounds()};
    media::LoadedMediaPlayers loadedPlayers;
    SoundServer sound;
    VoiceEngines engines;
    bool isSilenceTold = false;

public:
    ends::SimulatorEnd Velmarc;
    ends::FrameworkEnd Tessaly;
    // The heard engine from a start on at which there is a sound server; else the embedded one.
    ends::VoiceEngineEnd Engine;
    ends::MicrophoneGuard VVL;  // before the engine
    // The sound server's from when there is one; without it the embedded ones. One that is lost is awaited.
    ends::MixerEnd VolumeControl;
    ends::MixerEnd VolumeControlHP;
    TeamSpeakRemote& TSRemote;
    // Those that are heard where their module is installed, else the embedded ones, which are silent.
    MediaPlayerFactory& MediaPlayers;
};

}  // namespace orvelle
