#include "adapters/embedded/VoiceEngine.h"

#include <algorithm>
#include <utility>

namespace orvelle {

namespace {

std::string EachEndedByLineFeed(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += name + "\n";
    return text;
}

template <typename Elements>
auto* At(Elements& elements, Long index) {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < elements.size();
    return exists ? &elements[static_cast<std::size_t>(index)] : nullptr;
}

}  // namespace

EmbeddedVoiceEngine::EmbeddedVoiceEngine(EventLoop& loop)
    : Changed(loop),
      delivery(loop),
      inputDevices{"DirectSound - Microphone", "Wave - Headset Microphone"},
      outputDevices{"DirectSound - Loudspeakers", "DirectSound - Headset", "Wave - Line Out"} {}

bool EmbeddedVoiceEngine::Running() { return running; }

bool EmbeddedVoiceEngine::Start(Long) {
    if (running || startOutcome == StartOutcome::Refused) return false;
    if (!starting) delivery.RaiseAfter(startDelay, [this] { StartDone(); });
    starting = true;
    Changed.Mark();
    return true;
}

void EmbeddedVoiceEngine::Stop() {
    delivery.Drop();
    ShutDown();
}

void EmbeddedVoiceEngine::InputSquelch(double value) {
    inputSquelchValue = value;
    Changed.Mark();
}

void EmbeddedVoiceEngine::OutputSquelch(double value) {
    outputSquelchValue = value;
    Changed.Mark();
}

std::string EmbeddedVoiceEngine::InputDevices() { return EachEndedByLineFeed(inputDevices); }
std::string EmbeddedVoiceEngine::OutputDevices() { return EachEndedByLineFeed(outputDevices); }

void EmbeddedVoiceEngine::InputDevice(Long device) {
    inputDevice = device;
    Changed.Mark();
}

void EmbeddedVoiceEngine::OutputDevice(Long output, Long device) { SetOutput(output, &VoiceOutput::Device, device); }
void EmbeddedVoiceEngine::OutputVolume(Long output, Long value) { SetOutput(output, &VoiceOutput::Volume, value); }

void EmbeddedVoiceEngine::SignalVolume(Long output, Long value) {
    SetOutput(output, &VoiceOutput::SignalVolume, value);
}

void EmbeddedVoiceEngine::OutputFilter(Long output, bool on) { SetOutput(output, &VoiceOutput::Filter, on); }

void EmbeddedVoiceEngine::ChannelOutput(Long room, Long output, bool on) {
    VoiceRoom* place = At(rooms, room);
    bool* routed = place ? At(place->Output, output) : nullptr;
    if (!routed) return;
    *routed = on;
    Changed.Mark();
}

bool EmbeddedVoiceEngine::InputStatus() { return running && !inputFailed; }

bool EmbeddedVoiceEngine::OutputStatus(Long output) {
    const VoiceOutput* device = At(outputs, output);
    return running && device && !device->Failed;
}

bool EmbeddedVoiceEngine::RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) {
    VoiceRoom* place = At(rooms, room);
    if (!running || !place || place->Joins == JoinOutcome::Refused) return false;
    RoomLeave(room);
    place->ClientName = clientName;
    place->Address = roomAddress;
    SetState(room, RoomState::Joining, "Joining " + roomAddress);
    delivery.RaiseAfter(joinDelay, [this, room, attempt = attempts[static_cast<std::size_t>(room)]] {
        if (attempt == attempts[static_cast<std::size_t>(room)]) JoinDone(room);
    });
    return true;
}

// Who is on the way back in when the event comes has not left: told late, it would pass for the end of the new join.
void EmbeddedVoiceEngine::RoomLeave(Long room) {
    if (!Leave(room)) return;
    delivery.Raise([this, room] {
        if (Room(room).State == RoomState::Out) VVL_RoomLeft(room);
    });
}

void EmbeddedVoiceEngine::RoomMute(Long room, bool mute) {
    VoiceRoom* place = At(rooms, room);
    if (!place) return;
    place->Muted = mute;
    Changed.Mark();
}

std::string EmbeddedVoiceEngine::RoomStatus(Long room) {
    const VoiceRoom* place = At(rooms, room);
    return place ? place->Status : "";
}

bool EmbeddedVoiceEngine::Calibrate(Long microphone, Long headset, float& inputSquelch, float& outputSquelch) {
    const auto squelch = CalibrationDialogue ? CalibrationDialogue(microphone, headset) : std::nullopt;
    if (!squelch) return false;
    inputSquelch = squelch->Input;
    outputSquelch = squelch->Output;
    InputSquelch(squelch->Input);
    OutputSquelch(squelch->Output);
    return true;
}

void EmbeddedVoiceEngine::SetStartOutcome(StartOutcome outcome) {
    startOutcome = outcome;
    Changed.Mark();
}

void EmbeddedVoiceEngine::SetJoinOutcome(Long room, JoinOutcome outcome) {
    if (VoiceRoom* place = At(rooms, room)) place->Joins = outcome;
    Changed.Mark();
}

void EmbeddedVoiceEngine::Kick(Long room) {
    const VoiceRoom* place = At(rooms, room);
    if (place && place->State == RoomState::In && Leave(room)) RaiseForRoom(VVL_RoomKicked, room);
}

void EmbeddedVoiceEngine::SetRoomAudio(Long room, bool carries) {
    VoiceRoom* place = At(rooms, room);
    if (!place || place->State != RoomState::In || place->Audio == carries) return;
    place->Audio = carries;
    RaiseForRoom(carries ? VVL_RoomAudioStarted : VVL_RoomAudioStopped, room);
}

void EmbeddedVoiceEngine::SetRoomStatus(Long room, const std::string& status) {
    VoiceRoom* place = At(rooms, room);
    if (!place || place->Status == status) return;
    place->Status = status;
    if (running) RaiseForRoom(VVL_RoomStatusChanged, room);
}

void EmbeddedVoiceEngine::Fail() {
    if (!running) return;
    delivery.Drop();
    ShutDown();
    delivery.Raise([this] { VVL_Stopped(); });
}

void EmbeddedVoiceEngine::SetInputDevices(std::vector<std::string> names) {
    inputDevices = std::move(names);
    Changed.Mark();
}
void EmbeddedVoiceEngine::SetOutputDevices(std::vector<std::string> names) {
    outputDevices = std::move(names);
    Changed.Mark();
}

void EmbeddedVoiceEngine::FailInput(bool failed) {
    inputFailed = failed;
    Changed.Mark();
}

void EmbeddedVoiceEngine::FailOutput(Long output, bool failed) { SetOutput(output, &VoiceOutput::Failed, failed); }

template <typename Value>
void EmbeddedVoiceEngine::SetOutput(Long output, Value VoiceOutput::*member, Value value) {
    VoiceOutput* device = At(outputs, output);
    if (!device) return;
    device->*member = value;
    Changed.Mark();
}

void EmbeddedVoiceEngine::StartDone() {
    starting = false;
    running = startOutcome == StartOutcome::Starts;
    Changed.Mark();
    if (running)
        VVL_Started();
    else
        VVL_Stopped();
}

// A join that the deck refuses only after it was accepted has failed.
void EmbeddedVoiceEngine::JoinDone(Long room) {
    const bool joined = Room(room).Joins == JoinOutcome::Succeeds;
    SetState(room, joined ? RoomState::In : RoomState::Out, joined ? "In " + Room(room).Address : "Not joined");
    FollowAudio();
    if (joined)
        VVL_RoomJoinSucceed(room);
    else
        VVL_RoomJoinFailed(room);
}

// Tells whether somebody was in the room. A join under way is given up without an event of its own.
bool EmbeddedVoiceEngine::Leave(Long room) {
    VoiceRoom* place = At(rooms, room);
    if (!place || place->State == RoomState::Out) return false;
    const bool wasIn = place->State == RoomState::In;
    ++attempts[static_cast<std::size_t>(room)];
    SetRoomAudio(room, false);
    SetState(room, RoomState::Out, "");
    FollowAudio();
    return wasIn;
}

void EmbeddedVoiceEngine::SetState(Long room, RoomState state, const std::string& status) {
    At(rooms, room)->State = state;
    SetRoomStatus(room, status);
    Changed.Mark();
}

void EmbeddedVoiceEngine::ShutDown() {
    starting = false;
    running = false;
    audioRuns = false;
    for (VoiceRoom& room : rooms) {
        room.State = RoomState::Out;
        room.Audio = false;
        room.Status = "";
    }
    for (unsigned& attempt : attempts) ++attempt;
    Changed.Mark();
}

void EmbeddedVoiceEngine::FollowAudio() {
    const bool wanted = std::ranges::any_of(rooms, [](const VoiceRoom& room) { return room.State == RoomState::In; });
    if (audioRuns == wanted) return;
    audioRuns = wanted;
    delivery.Raise([this, wanted] {
        if (wanted)
            VVL_AudioStarted();
        else
            VVL_AudioStopped();
    });
}

void EmbeddedVoiceEngine::RaiseForRoom(const Event<Long>& event, Long room) {
    delivery.Raise([&event, room] { event(room); });
    Changed.Mark();
}

}  // namespace orvelle
