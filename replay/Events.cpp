#include <utility>

#include "replay/Lines.h"
#include "replay/Signature.h"

namespace orvelle::replay {

namespace {

// An ignored argument may be of any kind.
template <typename T>
T Argument(const Value& value) {
    return value.Is<T>() ? value.As<T>() : T();
}

template <typename... Arguments>
void RaiseWith(const Event<Arguments...>& event, const Values& values) {
    [&]<std::size_t... Index>(std::index_sequence<Index...>) {
        event(Argument<std::remove_cvref_t<Arguments>>(values[Index])...);
    }
    (std::index_sequence_for<Arguments...>());
}

template <auto Owner, auto Member>
void Raise(World& world, const Values& arguments) {
    RaiseWith(world.*Owner.*Member, arguments);
}

struct EventForm {
    const char* Name;
    std::string_view Arguments;
    void (*Raise)(World& world, const Values& arguments);
};

constexpr auto Velmarc = &World::Velmarc;
constexpr auto Tessaly = &World::Tessaly;
constexpr auto Engine = &World::VVL;
constexpr auto Mixer = &World::VolumeControl;
constexpr auto SpeakersMixer = &World::VolumeControlHP;

constexpr EventForm Events[] = {
    {"Velmarc.Connected", "", Raise<Velmarc, &VelmarcControl::Connected>},
    {"Velmarc.Disconnected", "", Raise<Velmarc, &VelmarcControl::Disconnected>},
    {"Velmarc.ServerFound", "t", Raise<Velmarc, &VelmarcControl::ServerFound>},
    {"Velmarc.FSKeyDown", "bbtt", Raise<Velmarc, &VelmarcControl::FSKeyDown>},
    {"Velmarc.FSKeyUp", "**t*", Raise<Velmarc, &VelmarcControl::FSKeyUp>},
    {"Velmarc.FSJoyDown", "**t*", Raise<Velmarc, &VelmarcControl::FSJoyDown>},
    {"Velmarc.FSJoyUp", "**t*", Raise<Velmarc, &VelmarcControl::FSJoyUp>},

    {"Tessaly.Connected", "", Raise<Tessaly, &FrameworkLink::Connected>},
    {"Tessaly.Disconnected", "", Raise<Tessaly, &FrameworkLink::Disconnected>},
    {"Tessaly.ServerFound", "t", Raise<Tessaly, &FrameworkLink::ServerFound>},
    {"Tessaly.SessionOpened", "", Raise<Tessaly, &NetworkSession::SessionOpened>},
    {"Tessaly.SessionClosed", "", Raise<Tessaly, &NetworkSession::SessionClosed>},
    {"Tessaly.SessionStatusChanged", "", Raise<Tessaly, &NetworkSession::SessionStatusChanged>},
    {"Tessaly.RadioChanged", "", Raise<Tessaly, &NetworkSession::RadioChanged>},
    {"Tessaly.RadioVoiceChanged", "n", Raise<Tessaly, &NetworkSession::RadioVoiceChanged>},
    {"Tessaly.CallsignChanged", "", Raise<Tessaly, &NetworkSession::CallsignChanged>},
    {"Tessaly.InterfaceAppeared", "n", Raise<Tessaly, &InterfaceRecords::InterfaceAppeared>},
    {"Tessaly.InterfaceChanged", "n", Raise<Tessaly, &InterfaceRecords::InterfaceChanged>},
    {"Tessaly.InterfaceRemoved", "n", Raise<Tessaly, &InterfaceRecords::InterfaceRemoved>},
    {"Tessaly.InterfaceParamChanged", "nn", Raise<Tessaly, &InterfaceRecords::InterfaceParamChanged>},

    {"VVL_Started", "", Raise<Engine, &VoiceEngineControl::VVL_Started>},
    {"VVL_Stopped", "", Raise<Engine, &VoiceEngineControl::VVL_Stopped>},
    {"VVL_AudioStarted", "", Raise<Engine, &VoiceEngineControl::VVL_AudioStarted>},
    {"VVL_AudioStopped", "", Raise<Engine, &VoiceEngineControl::VVL_AudioStopped>},
    {"VVL_RoomJoinSucceed", "i", Raise<Engine, &VoiceEngineControl::VVL_RoomJoinSucceed>},
    {"VVL_RoomJoinFailed", "i", Raise<Engine, &VoiceEngineControl::VVL_RoomJoinFailed>},
    {"VVL_RoomKicked", "i", Raise<Engine, &VoiceEngineControl::VVL_RoomKicked>},
    {"VVL_RoomLeft", "i", Raise<Engine, &VoiceEngineControl::VVL_RoomLeft>},
    {"VVL_RoomAudioStarted", "i", Raise<Engine, &VoiceEngineControl::VVL_RoomAudioStarted>},
    {"VVL_RoomAudioStopped", "i", Raise<Engine, &VoiceEngineControl::VVL_RoomAudioStopped>},
    {"VVL_RoomStatusChanged", "i", Raise<Engine, &VoiceEngineControl::VVL_RoomStatusChanged>},

    {"VolumeControl.InputOpened", "", Raise<Mixer, &MixerControl::InputOpened>},
    {"VolumeControl.InputClosed", "", Raise<Mixer, &MixerControl::InputClosed>},
    {"VolumeControl.MicVolumeChanged", "", Raise<Mixer, &MixerControl::MicVolumeChanged>},
    {"VolumeControl.OutputOpened", "", Raise<Mixer, &MixerControl::OutputOpened>},
    {"VolumeControl.OutputClosed", "", Raise<Mixer, &MixerControl::OutputClosed>},
    {"VolumeControl.MasterVolumeChanged", "", Raise<Mixer, &MixerControl::MasterVolumeChanged>},
    {"VolumeControl.WaveVolumeChanged", "", Raise<Mixer, &MixerControl::WaveVolumeChanged>},

    {"VolumeControlHP.InputOpened", "", Raise<SpeakersMixer, &MixerControl::InputOpened>},
    {"VolumeControlHP.InputClosed", "", Raise<SpeakersMixer, &MixerControl::InputClosed>},
    {"VolumeControlHP.MicVolumeChanged", "", Raise<SpeakersMixer, &MixerControl::MicVolumeChanged>},
    {"VolumeControlHP.OutputOpened", "", Raise<SpeakersMixer, &MixerControl::OutputOpened>},
    {"VolumeControlHP.OutputClosed", "", Raise<SpeakersMixer, &MixerControl::OutputClosed>},
    {"VolumeControlHP.MasterVolumeChanged", "", Raise<SpeakersMixer, &MixerControl::MasterVolumeChanged>},
    {"VolumeControlHP.WaveVolumeChanged", "", Raise<SpeakersMixer, &MixerControl::WaveVolumeChanged>},
};

}  // namespace

Act ReadEvent(Stage& stage, Scanner& line) {
    const Reference reference = line.AnyReference();
    line.ExpectEnd();
    std::string name;
    for (std::size_t part = 0; part + 1 < reference.Parts.size(); ++part) name += reference.Parts[part].Printed() + ".";
    name += reference.Parts.back().Name;
    for (const EventForm& event : Events) {
        if (name != event.Name) continue;
        const Values arguments =
            Fitted(reference.Parts.back().Arguments.value_or(Values()), event.Arguments, "the event " + name);
        return [&stage, &event, arguments] { event.Raise(stage.Outside, arguments); };
    }
    throw LineError("there is no event " + name);
}

}  // namespace orvelle::replay
