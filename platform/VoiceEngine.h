// The VATSIM voice engine: audio devices, two outputs (0 headset, 1 speakers), three rooms (0 COM1, 1 COM2,
// 2 private). Start and RoomJoin answer whether the request was accepted; the outcome comes as an event on the
// panel's thread, never from inside a call. Device number -1 is the system's default device.
#pragma once

#include <string>

#include "platform/Event.h"
#include "platform/Types.h"

namespace orvelle {

constexpr Long Rooms = 3;
constexpr Long PrivateRoom = 2;  // the rooms before it are those of the two radios

constexpr Long Headset = 0;
constexpr Long Speakers = 1;

class VoiceEngineControl {
public:
    virtual ~VoiceEngineControl() = default;

    virtual bool Running() = 0;
    virtual bool Start(Long mode) = 0;
    virtual void Stop() = 0;
    virtual void InputSquelch(double value) = 0;
    virtual void OutputSquelch(double value) = 0;
    // Names, each ended by a line feed.
    virtual std::string InputDevices() = 0;
    virtual std::string OutputDevices() = 0;
    virtual void InputDevice(Long device) = 0;
    virtual void OutputDevice(Long output, Long device) = 0;
    virtual void OutputVolume(Long output, Long value) = 0;  // 0 to 400
    virtual void SignalVolume(Long output, Long value) = 0;  // 0 to 100
    virtual void OutputFilter(Long output, bool on) = 0;
    virtual void ChannelOutput(Long room, Long output, bool on) = 0;
    virtual bool InputStatus() = 0;
    virtual bool OutputStatus(Long output) = 0;
    virtual bool RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) = 0;
    virtual void RoomLeave(Long room) = 0;
    virtual void RoomMute(Long room, bool mute) = 0;
    virtual std::string RoomStatus(Long room) = 0;
    // Runs the engine's own dialogue with the two devices; True gives the two squelch values.
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
