// What the panel sets on the voice engine: kept, since it is read back and holds for the next start, and handed to the
// voice thread in its own terms.
#include "apps/voice/VoiceEngine.h"

namespace orvelle {

VoiceOutput* VoiceEngine::Find(Long output) {
    return output == Headset || output == Speakers ? &outputs.at(static_cast<std::size_t>(output)) : nullptr;
}

void VoiceEngine::InputSquelch(double value) {
    inputSquelchValue = value;
    Do([value](VoiceWork& work) { work.Outgoing().SetSquelch(value); });
}

void VoiceEngine::OutputSquelch(double value) {
    outputSquelchValue = value;
    Do([value](VoiceWork& work) {
        for (Long output : {Headset, Speakers}) work.Incoming().Mix(output).SetSquelch(value);
    });
}

void VoiceEngine::InputDevice(Long device) {
    microphone = device;
    Do([name = devices.Microphone(device)](VoiceWork& work) { work.Streams().SetMicrophone(name); });
}

void VoiceEngine::OutputDevice(Long output, Long device) {
    VoiceOutput* const place = Find(output);
    if (!place) return;
    place->Device = device;
    Do([output, name = devices.Output(device)](VoiceWork& work) { work.Streams().SetOutput(output, name); });
}

void VoiceEngine::OutputVolume(Long output, Long value) {
    VoiceOutput* const place = Find(output);
    if (!place) return;
    place->Volume = value;
    Do([output, value](VoiceWork& work) { work.Incoming().Mix(output).SetVolume(value); });
}

void VoiceEngine::SignalVolume(Long output, Long value) {
    VoiceOutput* const place = Find(output);
    if (!place) return;
    place->SignalVolume = value;
    Do([output, value](VoiceWork& work) { work.Incoming().Mix(output).SetSignalVolume(value); });
}

void VoiceEngine::OutputFilter(Long output, bool on) {
    VoiceOutput* const place = Find(output);
    if (!place) return;
    place->Filter = on;
    Do([output, on](VoiceWork& work) { work.Incoming().Mix(output).SetFilter(on); });
}

bool VoiceEngine::OutputStatus(Long output) {
    const VoiceOutput* const place = Find(output);
    return running && place && !place->Failed;
}

void VoiceEngine::ChannelOutput(Long room, Long output, bool on) {
    VoiceRoom* const place = rooms.Find(room);
    if (!place || !Find(output)) return;
    place->Output.at(static_cast<std::size_t>(output)) = on;
    Do([room, output, on](VoiceWork& work) { work.Incoming().Route(room, output, on); });
}

void VoiceEngine::RoomMute(Long room, bool mute) {
    VoiceRoom* const place = rooms.Find(room);
    if (!place) return;
    place->Muted = mute;
    Do([room, mute](VoiceWork& work) { work.Mute(room, mute); });
}

}  // namespace orvelle
