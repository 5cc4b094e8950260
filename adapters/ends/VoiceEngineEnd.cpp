#include "adapters/ends/VoiceEngineEnd.h"

#include <utility>

#include "adapters/ends/EngineEvents.h"

namespace orvelle::ends {

namespace {

constexpr Long Every = -1;  // in place of a room or an output, where the setting has none

}  // namespace

VoiceEngineEnd::VoiceEngineEnd(EventLoop& loop, ServingEngine first, std::function<ServingEngine()> chooseEngine)
    : changes(loop), serving(first), choose(std::move(chooseEngine)) {
    Join();
}

VoiceEngineEnd::~VoiceEngineEnd() { EndEvents(*serving.Control); }

bool VoiceEngineEnd::Running() {
    Choose();
    return serving.Control->Running();
}

bool VoiceEngineEnd::Start(Long mode) {
    Choose();
    return serving.Control->Start(mode);
}

// The engine takes over what it found by itself.
bool VoiceEngineEnd::Calibrate(Long inputDevice, Long outputDevice, float& inputSquelch, float& outputSquelch) {
    Choose();
    if (IsResting()) serving.Control->Stop();
    if (!serving.Control->Calibrate(inputDevice, outputDevice, inputSquelch, outputSquelch)) return false;
    InputSquelch(inputSquelch);
    OutputSquelch(outputSquelch);
    return true;
}

void VoiceEngineEnd::InputSquelch(double value) {
    Set(Setting::InputSquelch, Every, Every, [=](VoiceEngineControl& engine) { engine.InputSquelch(value); });
}

void VoiceEngineEnd::OutputSquelch(double value) {
    Set(Setting::OutputSquelch, Every, Every, [=](VoiceEngineControl& engine) { engine.OutputSquelch(value); });
}

void VoiceEngineEnd::InputDevice(Long device) {
    Set(Setting::InputDevice, Every, Every, [=](VoiceEngineControl& engine) { engine.InputDevice(device); });
}

void VoiceEngineEnd::OutputDevice(Long output, Long device) {
    Set(Setting::OutputDevice, Every, output, [=](VoiceEngineControl& engine) { engine.OutputDevice(output, device); });
}

void VoiceEngineEnd::OutputVolume(Long output, Long value) {
    Set(Setting::OutputVolume, Every, output, [=](VoiceEngineControl& engine) { engine.OutputVolume(output, value); });
}

void VoiceEngineEnd::SignalVolume(Long output, Long value) {
    Set(Setting::SignalVolume, Every, output, [=](VoiceEngineControl& engine) { engine.SignalVolume(output, value); });
}

void VoiceEngineEnd::OutputFilter(Long output, bool on) {
    Set(Setting::OutputFilter, Every, output, [=](VoiceEngineControl& engine) { engine.OutputFilter(output, on); });
}

void VoiceEngineEnd::ChannelOutput(Long room, Long output, bool on) {
    Set(Setting::ChannelOutput, room, output,
        [=](VoiceEngineControl& engine) { engine.ChannelOutput(room, output, on); });
}

void VoiceEngineEnd::RoomMute(Long room, bool mute) {
    Set(Setting::RoomMute, room, Every, [=](VoiceEngineControl& engine) { engine.RoomMute(room, mute); });
}

void VoiceEngineEnd::Set(Setting setting, Long room, Long output, Call call) {
    call(*serving.Control);
    kept.insert_or_assign({setting, room, output}, std::move(call));
}

bool VoiceEngineEnd::IsResting() const {
    bool isAnywhere = false;
    for (Long room = 0; room < Rooms; ++room) isAnywhere = isAnywhere || Room(room).Presence != RoomPresence::Out;
    return IsRunning() && !isAnywhere;
}

void VoiceEngineEnd::Choose() {
    if (IsStarting() || (IsRunning() && !IsResting())) return;
    const ServingEngine chosen = choose();
    if (chosen.Control == serving.Control) return;
    EndEvents(*serving.Control);
    serving.Control->Stop();
    serving = chosen;
    Join();
    for (const auto& [setting, call] : kept) call(*serving.Control);
    changes.Mark();
}

void VoiceEngineEnd::Join() {
    PassEvents(*serving.Control, *this);
    watch = serving.View->Observe([this] { changes.Mark(); });
}

}  // namespace orvelle::ends
