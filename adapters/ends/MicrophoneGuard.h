// Stands between the panel and the voice engine, whichever that is, so that no microphone stays open: a room is open
// only while something that started the talk is held on the simulator's computer. The panel can miss the end of a talk:
// the talk key is set anew or cleared while it is held, or the engine's record can't be opened at the release; then
// this guard mutes the room when the panel has had its turn at the release, which a lost link brings as well. The
// program calls CloseAll at its end. Every call and event passes through as it is; a room that was closed here opens by
// the panel's next start of a talk. Both outlive the guard.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "adapters/shared/HeldInputs.h"
#include "platform/VoiceEngine.h"

namespace orvelle::ends {

class SimulatorEnd;

class MicrophoneGuard : public VoiceEngineControl {
public:
    MicrophoneGuard(VoiceEngineControl& guardedEngine, SimulatorEnd& simulatorEnd);
    MicrophoneGuard(const MicrophoneGuard&) = delete;
    MicrophoneGuard& operator=(const MicrophoneGuard&) = delete;
    ~MicrophoneGuard() override;

    void CloseAll();

    void RoomMute(Long room, bool mute) override;

    bool Running() override { return engine.Running(); }
    bool Start(Long mode) override { return engine.Start(mode); }
    void Stop() override { engine.Stop(); }
    void InputSquelch(double value) override { engine.InputSquelch(value); }
    void OutputSquelch(double value) override { engine.OutputSquelch(value); }
    std::string InputDevices() override { return engine.InputDevices(); }
    std::string OutputDevices() override { return engine.OutputDevices(); }
    void InputDevice(Long device) override { engine.InputDevice(device); }
    void OutputDevice(Long output, Long device) override { engine.OutputDevice(output, device); }
    void OutputVolume(Long output, Long value) override { engine.OutputVolume(output, value); }
    void SignalVolume(Long output, Long value) override { engine.SignalVolume(output, value); }
    void OutputFilter(Long output, bool on) override { engine.OutputFilter(output, on); }
    void ChannelOutput(Long room, Long output, bool on) override { engine.ChannelOutput(room, output, on); }
    bool InputStatus() override { return engine.InputStatus(); }
    bool OutputStatus(Long output) override { return engine.OutputStatus(output); }
    bool RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) override {
        return engine.RoomJoin(room, clientName, roomAddress);
    }
    void RoomLeave(Long room) override { engine.RoomLeave(room); }
    std::string RoomStatus(Long room) override { return engine.RoomStatus(room); }
    bool Calibrate(Long inputDevice, Long outputDevice, float& inputSquelch, float& outputSquelch) override {
        return engine.Calibrate(inputDevice, outputDevice, inputSquelch, outputSquelch);
    }

private:
    struct Talk {
        bool IsOpen = false;
        // What started the talk; empty for one that has outlived all of it, none where no talk is known of.
        std::optional<std::vector<HeldInput>> StartedBy;
    };

    bool IsHeld(const Talk& talk) const;
    std::vector<HeldInput> MadeOf(const InputChange& press) const;
    void Close(Long room);
    void CloseWhatIsNotHeld();

    VoiceEngineControl& engine;
    SimulatorEnd& simulator;
    std::array<Talk, Rooms> talks;  // of each room
};

}  // namespace orvelle::ends
