// A voice engine without sound: it keeps all that the panel sets, joins and leaves rooms, and fails as its far
// side says.
// Requests are answered at once by their result and later, from the loop, by their event. Main thread only. Rooms are
// 0 to 2, outputs 0 to 1; a call with another number does nothing.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "adapters/shared/Changes.h"
#include "adapters/shared/Delivery.h"
#include "platform/AudioDevices.h"
#include "platform/VoiceEngine.h"
#include "platform/sides/VoiceEngineSide.h"

namespace orvelle::embedded {

class VoiceEngine : public VoiceEngineControl, public VoiceEngineSide {
public:
    // The devices outlive it.
    VoiceEngine(EventLoop& loop, const AudioDevices& audioDevices);

    bool Running() override;
    bool Start(Long mode) override;
    void Stop() override;  // nothing is raised after it, until the next Start
    void InputSquelch(double value) override;
    void OutputSquelch(double value) override;
    std::string InputDevices() override;
    std::string OutputDevices() override;
    void InputDevice(Long device) override;
    void OutputDevice(Long output, Long device) override;
    void OutputVolume(Long output, Long value) override;
    void SignalVolume(Long output, Long value) override;
    void OutputFilter(Long output, bool on) override;
    void ChannelOutput(Long room, Long output, bool on) override;
    bool InputStatus() override;
    bool OutputStatus(Long output) override;
    bool RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) override;
    void RoomLeave(Long room) override;  // VVL_RoomLeft follows if it was in the room and stays out
    void RoomMute(Long room, bool mute) override;
    std::string RoomStatus(Long room) override;
    bool Calibrate(Long inputDevice, Long outputDevice, float& inputSquelch, float& outputSquelch) override;

    // Another engine serves in its place, or this one again.
    void StandBack() { SetServing(false); }
    void StepForward() { SetServing(true); }

    // The engine from its far side.
    bool IsServing() const override { return serving; }
    bool IsRunning() const override { return running; }
    bool IsStarting() const override { return starting; }
    bool AudioRuns() const override { return audioRuns; }
    const VoiceRoom& Room(Long room) const override { return rooms.at(static_cast<std::size_t>(room)); }
    const VoiceOutput& Output(Long output) const override { return outputs.at(static_cast<std::size_t>(output)); }
    Long Microphone() const override { return inputDevice; }
    double InputSquelchValue() const override { return inputSquelchValue; }
    double OutputSquelchValue() const override { return outputSquelchValue; }
    void SetStartOutcome(StartOutcome outcome) override;
    StartOutcome Starts() const override { return startOutcome; }
    void SetStartDelay(Long milliseconds) override { startDelay = milliseconds; }
    Long StartDelay() const override { return startDelay; }
    void SetJoinOutcome(Long room, JoinOutcome outcome) override;
    void SetJoinDelay(Long milliseconds) override { joinDelay = milliseconds; }
    Long JoinDelay() const override { return joinDelay; }
    void Kick(Long room) override;
    void SetRoomAudio(Long room, bool carries) override;
    void SetRoomStatus(Long room, const std::string& status) override;
    void Fail() override;
    void FailInput(bool failed) override;
    void FailOutput(Long output, bool failed) override;
    bool InputFailed() const override { return inputFailed; }
    Ticket AnswerCalibration(CalibrationDialogue dialogue) override;
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }

private:
    static constexpr double FirstSquelch = 50;

    void SetServing(bool serves);
    template <typename Value>
    void SetOutput(Long output, Value VoiceOutput::*member, Value value);
    void StartDone();
    void JoinDone(Long room);
    bool Leave(Long room);
    void SetPresence(Long room, RoomPresence presence, const std::string& status);
    void ShutDown();
    void FollowAudio();
    void RaiseForRoom(const Event<Long>& event, Long room);

    Changes changes;
    Delivery delivery;
    const AudioDevices& devices;
    bool serving = true;
    bool starting = false;
    bool running = false;
    bool audioRuns = false;
    StartOutcome startOutcome = StartOutcome::Starts;
    Long startDelay = 0;
    Long joinDelay = 0;
    std::array<VoiceRoom, 3> rooms;
    std::array<unsigned, 3> attempts{};  // counts the ways out, so that a join that was given up does not end
    std::array<VoiceOutput, 2> outputs;
    Long inputDevice = -1;
    double inputSquelchValue = FirstSquelch;
    double outputSquelchValue = FirstSquelch;
    bool inputFailed = false;
    Attachment<Long, Long, std::optional<Squelch>&> calibration;
};

}  // namespace orvelle::embedded
