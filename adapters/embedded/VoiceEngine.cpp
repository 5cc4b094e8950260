#include "adapters/embedded/VoiceEngine.h"

#include <algorithm>
#include <utility>

namespace orvelle::embedded {

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

VoiceEngine::VoiceEngine(EventLoop& loop, const AudioDevices& audioDevices)
    : changes(loop), delivery(loop), devices(audioDevices) {}

bool VoiceEngine::Running() { return running; }

bool VoiceEngine::Start(Long) {
    if (running || startOutcome == StartOutcome::Refused) return false;
    if (!starting) delivery.RaiseAfter(startDelay, [this] { StartDone(); });
    starting = true;
    changes.Mark();
    return true;
}

void VoiceEngine::Stop() {
    delivery.Drop();
    ShutDown();
}

void VoiceEngine::InputSquelch(double value) {
    inputSquelchValue = value;
    changes.Mark();
}

void VoiceEngine::OutputSquelch(double value) {
    outputSquelchValue = value;
    changes.Mark();
}

std::string VoiceEngine::InputDevices() { return EachEndedByLineFeed(devices.InputNames()); }
std::string VoiceEngine::OutputDevices() { return EachEndedByLineFeed(devices.OutputNames()); }

void VoiceEngine::InputDevice(Long device) {
    inputDevice = device;
    changes.Mark();
}

void VoiceEngine::OutputDevice(Long output, Long device) { SetOutput(output, &VoiceOutput::Device, device); }
void VoiceEngine::OutputVolume(Long output, Long value) { SetOutput(output, &VoiceOutput::Volume, value); }

void VoiceEngine::SignalVolume(Long output, Long value) { SetOutput(output, &VoiceOutput::SignalVolume, value); }

void VoiceEngine::OutputFilter(Long output, bool on) { SetOutput(output, &VoiceOutput::Filter, on); }

void VoiceEngine::ChannelOutput(Long room, Long output, bool on) {
    VoiceRoom* place = At(rooms, room);
    bool* routed = place ? At(place->Output, output) : nullptr;
    if (!routed) return;
    *routed = on;
    changes.Mark();
}

bool VoiceEngine::InputStatus() { return running && !inputFailed; }

bool VoiceEngine::OutputStatus(Long output) {
    const VoiceOutput* device = At(outputs, output);
    return running && device && !device->Failed;
}

bool VoiceEngine::RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) {
    VoiceRoom* place = At(rooms, room);
    if (!running || !place || place->Joins == JoinOutcome::Refused) return false;
    RoomLeave(room);
    place->ClientName = clientName;
    place->Address = roomAddress;
    SetPresence(room, RoomPresence::Joining, "Joining " + roomAddress);
    delivery.RaiseAfter(joinDelay, [this, room, attempt = attempts[static_cast<std::size_t>(room)]] {
        if (attempt == attempts[static_cast<std::size_t>(room)]) JoinDone(room);
    });
    return true;
}

// Who is on the way back in when the event comes has not left: told late, it would pass for the end of the new join.
void VoiceEngine::RoomLeave(Long room) {
    if (!Leave(room)) return;
    delivery.Raise([this, room] {
        if (Room(room).Presence == RoomPresence::Out) VVL_RoomLeft(room);
    });
}

void VoiceEngine::RoomMute(Long room, bool mute) {
    VoiceRoom* place = At(rooms, room);
    if (!place) return;
    place->Muted = mute;
    changes.Mark();
}

std::string VoiceEngine::RoomStatus(Long room) {
    const VoiceRoom* place = At(rooms, room);
    return place ? place->Status : "";
}

bool VoiceEngine::Calibrate(Long microphone, Long headset, float& inputSquelch, float& outputSquelch) {
    std::optional<Squelch> squelch;
    calibration(microphone, headset, squelch);
    if (!squelch) return false;
    inputSquelch = squelch->Input;
    outputSquelch = squelch->Output;
    InputSquelch(squelch->Input);
    OutputSquelch(squelch->Output);
    return true;
}

void VoiceEngine::SetServing(bool serves) {
    serving = serves;
    changes.Mark();
}

void VoiceEngine::SetStartOutcome(StartOutcome outcome) {
    startOutcome = outcome;
    changes.Mark();
}

void VoiceEngine::SetJoinOutcome(Long room, JoinOutcome outcome) {
    if (VoiceRoom* place = At(rooms, room)) place->Joins = outcome;
    changes.Mark();
}

void VoiceEngine::Kick(Long room) {
    const VoiceRoom* place = At(rooms, room);
    if (place && place->Presence == RoomPresence::In && Leave(room)) RaiseForRoom(VVL_RoomKicked, room);
}

void VoiceEngine::SetRoomAudio(Long room, bool carries) {
    VoiceRoom* place = At(rooms, room);
    if (!place || place->Presence != RoomPresence::In || place->Audio == carries) return;
    place->Audio = carries;
    RaiseForRoom(carries ? VVL_RoomAudioStarted : VVL_RoomAudioStopped, room);
}

void VoiceEngine::SetRoomStatus(Long room, const std::string& status) {
    VoiceRoom* place = At(rooms, room);
    if (!place || place->Status == status) return;
    place->Status = status;
    if (running) RaiseForRoom(VVL_RoomStatusChanged, room);
}

void VoiceEngine::Fail() {
    if (!running) return;
    delivery.Drop();
    ShutDown();
    delivery.Raise([this] { VVL_Stopped(); });
}

Ticket VoiceEngine::AnswerCalibration(CalibrationDialogue dialogue) {
    return calibration.Begin(
        [dialogue = std::move(dialogue)](Long microphone, Long headset, std::optional<Squelch>& squelch) {
            squelch = dialogue(microphone, headset);
        });
}

void VoiceEngine::FailInput(bool failed) {
    inputFailed = failed;
    changes.Mark();
}

void VoiceEngine::FailOutput(Long output, bool failed) { SetOutput(output, &VoiceOutput::Failed, failed); }

template <typename Value>
void VoiceEngine::SetOutput(Long output, Value VoiceOutput::*member, Value value) {
    VoiceOutput* device = At(outputs, output);
    if (!device) return;
    device->*member = value;
    changes.Mark();
}

void VoiceEngine::StartDone() {
    starting = false;
    running = startOutcome == StartOutcome::Starts;
    changes.Mark();
    if (running)
        VVL_Started();
    else
        VVL_Stopped();
}

// A join that the far side refuses only after it was accepted has failed.
void VoiceEngine::JoinDone(Long room) {
    const bool joined = Room(room).Joins == JoinOutcome::Succeeds;
    SetPresence(room, joined ? RoomPresence::In : RoomPresence::Out,
                joined ? "In " + Room(room).Address : "Not joined");
    FollowAudio();
    if (joined)
        VVL_RoomJoinSucceed(room);
    else
        VVL_RoomJoinFailed(room);
}

// Tells whether somebody was in the room. A join under way is given up without an event of its own.
bool VoiceEngine::Leave(Long room) {
    VoiceRoom* place = At(rooms, room);
    if (!place || place->Presence == RoomPresence::Out) return false;
    const bool wasIn = place->Presence == RoomPresence::In;
    ++attempts[static_cast<std::size_t>(room)];
    SetRoomAudio(room, false);
    SetPresence(room, RoomPresence::Out, "");
    FollowAudio();
    return wasIn;
}

void VoiceEngine::SetPresence(Long room, RoomPresence presence, const std::string& status) {
    At(rooms, room)->Presence = presence;
    SetRoomStatus(room, status);
    changes.Mark();
}

void VoiceEngine::ShutDown() {
    starting = false;
    running = false;
    audioRuns = false;
    for (VoiceRoom& room : rooms) {
        room.Presence = RoomPresence::Out;
        room.Audio = false;
        room.Status = "";
    }
    for (unsigned& attempt : attempts) ++attempt;
    changes.Mark();
}

void VoiceEngine::FollowAudio() {
    const bool wanted =
        std::ranges::any_of(rooms, [](const VoiceRoom& room) { return room.Presence == RoomPresence::In; });
    if (audioRuns == wanted) return;
    audioRuns = wanted;
    delivery.Raise([this, wanted] {
        if (wanted)
            VVL_AudioStarted();
        else
            VVL_AudioStopped();
    });
}

void VoiceEngine::RaiseForRoom(const Event<Long>& event, Long room) {
    delivery.Raise([&event, room] { event(room); });
    changes.Mark();
}

}  // namespace orvelle::embedded
