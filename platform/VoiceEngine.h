// The VATSIM voice engine: audio devices, two outputs (Headset, Speakers), three rooms (0 COM1, 1 COM2, 2 private).
// Start and RoomJoin answer whether the request was accepted; the outcome comes as an event on the panel's thread,
// never from inside a call. A device is numbered by its place in the list, from 0; -1 is the system's default device.
// What is set holds until the engine stops. A call with another room or output does nothing.
#pragma once

#include <string>

#include "platform/Event.h"
#include "platform/Types.h"

namespace orvelle {

constexpr Long Rooms = 3;
constexpr Long PrivateRoom = 2;  // the rooms before it are those of the two radios

constexpr Long EngineMode = 3;  // the only mode in use

constexpr Long Headset = 0;
constexpr Long Speakers = 1;

class VoiceEngineControl {
public:
    virtual ~VoiceEngineControl() = default;

    virtual bool Running() = 0;
    // With EngineMode, while it does not run. True: VVL_Started follows, or VVL_Stopped where it did not come up.
    // False: no event follows.
    virtual bool Start(Long mode) = 0;
    // Leaves every room and ends; raises nothing, not even what was under way.
    virtual void Stop() = 0;
    // How loud a sound must be to pass, 0 (every sound) to 100. Handed over as it was kept, unchecked: what lies
    // outside is taken for the nearer end.
    virtual void InputSquelch(double value) = 0;
    virtual void OutputSquelch(double value) = 0;
    // Names, each ended by a line feed; also while the engine does not run.
    virtual std::string InputDevices() = 0;
    virtual std::string OutputDevices() = 0;
    virtual void InputDevice(Long device) = 0;
    virtual void OutputDevice(Long output, Long device) = 0;
    // Of the voices, percent, 0 to 400.
    virtual void OutputVolume(Long output, Long value) = 0;
    // Of the engine's own tones on that output, percent, 0 to 100.
    virtual void SignalVolume(Long output, Long value) = 0;
    // Makes the voices sound as by radio.
    virtual void OutputFilter(Long output, bool on) = 0;
    // Whether the room is heard there.
    virtual void ChannelOutput(Long room, Long output, bool on) = 0;
    // Whether the engine runs and the device works.
    virtual bool InputStatus() = 0;
    virtual bool OutputStatus(Long output) = 0;
    // `roomAddress` is server and channel with a "/" between them. True: VVL_RoomJoinSucceed or VVL_RoomJoinFailed
    // follows, unless the room is left before. False: no event follows.
    virtual bool RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) = 0;
    // VVL_RoomLeft follows if somebody was in the room and stays out. A join under way is given up without an event.
    virtual void RoomLeave(Long room) = 0;
    // The microphone to the room; muted at first.
    virtual void RoomMute(Long room, bool mute) = 0;
    // A sentence for the user.
    virtual std::string RoomStatus(Long room) = 0;
    // Runs the engine's own dialogue with the two devices and returns when it is closed; the loop is served meanwhile.
    // True gives the two squelch values, False (cancelled) leaves them.
    virtual bool Calibrate(Long inputDevice, Long outputDevice, float& inputSquelch, float& outputSquelch) = 0;

    Event<> VVL_Started;
    Event<> VVL_Stopped;
    Event<> VVL_AudioStarted;
    Event<> VVL_AudioStopped;
    Event<Long> VVL_RoomJoinSucceed;  // room
    Event<Long> VVL_RoomJoinFailed;
    Event<Long> VVL_RoomKicked;
    Event<Long> VVL_RoomLeft;
    Event<Long> VVL_RoomAudioStarted;
    Event<Long> VVL_RoomAudioStopped;
    Event<Long> VVL_RoomStatusChanged;
};

}  // namespace orvelle
