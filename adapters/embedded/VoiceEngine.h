// A voice engine without sound: it keeps all that the panel sets, joins and leaves rooms, and fails as the deck says.
// Requests are answered at once by their result and later, from the loop, by their event. Main thread only. Rooms are
// 0 to 2, outputs 0 to 1; a call with another number does nothing.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "adapters/shared/Changes.h"
#include "adapters/shared/Delivery.h"
#include "platform/VoiceEngine.h"

namespace orvelle {

enum class RoomState { Out, Joining, In };
enum class StartOutcome { Starts, Refused, Dies };    // Dies: accepted, then VVL_Stopped in place of VVL_Started
enum class JoinOutcome { Succeeds, Refused, Fails };  // Fails: accepted, then VVL_RoomJoinFailed

struct VoiceRoom {
    RoomState State = RoomState::Out;
    std::string ClientName;
    std::string Address;
    std::string Status;
    bool Audio = false;  // the room carries audio now
    bool Muted = true;   // the microphone to the room
    std::array<bool, 2> Output{};
    JoinOutcome Joins = JoinOutcome::Succeeds;
};

struct VoiceOutput {
    Long Device = -1;
    Long Volume = 100;
    Long SignalVolume = 100;
    bool Filter = false;
    bool Failed = false;  // the device does not work
};

struct Squelch {
    float Input = 0;
    float Output = 0;
};

class EmbeddedVoiceEngine : public VoiceEngineControl {
public:
    explicit EmbeddedVoiceEngine(EventLoop& loop);

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

    // The deck's side: what the panel set.
    const VoiceRoom& Room(Long room) const { return rooms.at(static_cast<std::size_t>(room)); }
    const VoiceOutput& Output(Long output) const { return outputs.at(static_cast<std::size_t>(output)); }
    Long Microphone() const { return inputDevice; }
    double InputSquelchValue() const { return inputSquelchValue; }
    double OutputSquelchValue() const { return outputSquelchValue; }
    bool Starting() const { return starting; }
    bool AudioRuns() const { return audioRuns; }  // from the first room joined to the last one left

    // How starts and joins go, and how long they take in milliseconds.
    void SetStartOutcome(StartOutcome outcome);
    StartOutcome Starts() const { return startOutcome; }
    void SetJoinOutcome(Long room, JoinOutcome outcome);
    void SetStartDelay(Long milliseconds) { startDelay = milliseconds; }
    void SetJoinDelay(Long milliseconds) { joinDelay = milliseconds; }
    Long StartDelay() const { return startDelay; }
    Long JoinDelay() const { return joinDelay; }

    void Kick(Long room);                        // only if it is in the room
    void SetRoomAudio(Long room, bool carries);  // likewise
    void SetRoomStatus(Long room, const std::string& status);
    void Fail();  // the running engine stops by itself: VVL_Stopped

    // Device names, without line feeds. The panel reads the lists at its start only.
    void SetInputDevices(std::vector<std::string> names);
    void SetOutputDevices(std::vector<std::string> names);
    void FailInput(bool failed);
    void FailOutput(Long output, bool failed);
    const std::vector<std::string>& InputDeviceNames() const { return inputDevices; }
    const std::vector<std::string>& OutputDeviceNames() const { return outputDevices; }
    bool InputFailed() const { return inputFailed; }

    // The calibration dialogue with the two devices; none is a cancel. Without a hook every calibration is one. The
    // engine keeps what it gives.
    std::function<std::optional<Squelch>(Long inputDevice, Long outputDevice)> CalibrationDialogue;

    Changes Changed;

private:
    static constexpr double FirstSquelch = 50;

    template <typename Value>
    void SetOutput(Long output, Value VoiceOutput::*member, Value value);
    void StartDone();
    void JoinDone(Long room);
    bool Leave(Long room);
    void SetState(Long room, RoomState state, const std::string& status);
    void ShutDown();
    void FollowAudio();
    void RaiseForRoom(const Event<Long>& event, Long room);

    Delivery delivery;
    bool starting = false;
    bool running = false;
    bool audioRuns = false;
    StartOutcome startOutcome = StartOutcome::Starts;
    Long startDelay = 0;
    Long joinDelay = 0;
    std::array<VoiceRoom, 3> rooms;
    std::array<unsigned, 3> attempts{};  // counts the ways out, so that a join that was given up does not end
    std::array<VoiceOutput, 2> outputs;
    std::vector<std::string> inputDevices;
    std::vector<std::string> outputDevices;
    Long inputDevice = -1;
    double inputSquelchValue = FirstSquelch;
    double outputSquelchValue = FirstSquelch;
    bool inputFailed = false;
};

}  // namespace orvelle
