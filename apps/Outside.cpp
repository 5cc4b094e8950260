#include "apps/Outside.h"

#include <utility>

#include "apps/OwnModules.h"

namespace orvelle {

namespace {

constexpr const char* LocalDomain = ".local";  // of what the network's own names say of this computer

}  // namespace

Outside::Outside(EventLoop& eventLoop, ControlValues& controlValues, const ComputerNames& thisComputer,
                 TeamSpeakRemote* realTeamSpeak, VoiceDialogs& voiceDialogs, const std::filesystem::path& voiceFolder)
    : Practice(eventLoop),
      loop(eventLoop),
      names(thisComputer),
      loadedPlayers([](std::string& why) {
          return FunctionOf<NewOrvelleMediaPlayerFunction>(media::ModuleName, "NewOrvelleMediaPlayer", why);
      }),
      sound(eventLoop),
      engines(eventLoop, sound, Practice, voiceDialogs, voiceFolder,
              [](std::string& why) {
                  return FunctionOf<NewOrvelleVoiceEngineFunction>(VoiceModuleName, "NewOrvelleVoiceEngine", why);
              }),
      Velmarc(eventLoop, controlValues, simulatorLines, {thisComputer.Name, thisComputer.Name + LocalDomain}),
      Tessaly(eventLoop, controlValues, frameworkLines),
      Engine(eventLoop, ends::ServingEngine::Of(Practice.VVL), [this] { return ChooseEngine(); }),
      VVL(Engine, Velmarc),
      VolumeControl(Practice.VolumeControl),
      VolumeControlHP(Practice.VolumeControlHP),
      TSRemote(realTeamSpeak ? *realTeamSpeak : Practice.TSRemote),
      MediaPlayers(IsModuleThere(media::ModuleName) ? static_cast<MediaPlayerFactory&>(loadedPlayers)
                                                    : Practice.MediaPlayers) {
    loadedPlayers.Told = [this](const std::string& sentence) { Told(sentence); };
    engines.Told = [this](const std::string& sentence) { Told(sentence); };
    sound.Came = [this] { ChooseMixers(); };
}

void Outside::Join(const mqtt::SetUpSetting& setUp) {
    if (!setUpLinks) {
        std::string why;
        auto* const make = FunctionOf<NewOrvelleSetUpLinksFunction>(SetUpModuleName, "NewOrvelleSetUpLinks", why);
        if (make == nullptr) return Told("This computer can't take part in its set-up: " + why + ".");
        setUpLinks.reset(make(loop, names));
        setUpLinks->Told = [this](const std::string& sentence) { Told(sentence); };
    }
    hasJoined = true;
    setUpLinks->Join(setUp);
    simulatorLines.EnterOthers(setUpLinks->SimulatorLine());
    frameworkLines.EnterOthers(setUpLinks->FrameworkLine());
    ChooseLines();
}

void Outside::Practise() {
    if (setUpLinks) setUpLinks->Leave();
    hasJoined = false;
    simulatorLines.EnterOthers(Practice.SimulatorLink);
    frameworkLines.EnterOthers(Practice.NetworkLink);
    ChooseLines();
}

void Outside::WhenSoundIsKnown(std::function<void()> act) {
    sound.WhenKnown([this, act = std::move(act)] {
        if (sound.Devices.AreKnown()) {
            Practice.Devices.SetInputs(sound.Devices.InputNames());
            Practice.Devices.SetOutputs(sound.Devices.OutputNames());
        }
        act();
    });
}

void Outside::ChooseMixers() {
    VolumeControl.Serve(sound.Headset);
    VolumeControlHP.Serve(sound.Speakers);
    Practice.VolumeControl.StandBack();
    Practice.VolumeControlHP.StandBack();
}

// Who practises alone talks to nobody anyway.
ends::ServingEngine Outside::ChooseEngine() {
    if (!sound.Devices.AreKnown() && hasJoined && !std::exchange(isSilenceTold, true))
        Told("The voice engine only practises, and nobody hears you by it: this computer has no sound server.");
    return engines.Choose();
}

void Outside::EndVoice() {
    VVL.CloseAll();
    VVL.Stop();
}

void Outside::ChooseLines() {
    Velmarc.ChooseLine();
    Tessaly.ChooseLine();
}

}  // namespace orvelle
