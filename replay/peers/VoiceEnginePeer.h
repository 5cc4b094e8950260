// The scripted voice engine. It accepts what it is asked, and no call raises an event.
#pragma once

#include "platform/VoiceEngine.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class VoiceEnginePeer final : public VoiceEngineControl, private Peer {
public:
    using Peer::Peer;

    bool Running() override;
    bool Start(Long mode) override;
    void Stop() override;
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
    void RoomLeave(Long room) override;
    void RoomMute(Long room, bool mute) override;
    std::string RoomStatus(Long room) override;
    bool Calibrate(Long inputDevice, Long outputDevice, float& inputSquelch, float& outputSquelch) override;
};

}  // namespace orvelle::replay
