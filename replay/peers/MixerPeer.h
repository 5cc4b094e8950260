// A scripted mixer. Opening it raises no event, and writing a level changes no answer.
#pragma once

#include "platform/VolumeControl.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class MixerPeer final : public MixerControl, private Peer {
public:
    using Peer::Peer;

    void InputDevice(const std::string& name) override { WriteProperty("InputDevice", name); }
    void OutputDevice(const std::string& name) override { WriteProperty("OutputDevice", name); }
    void Open() override { Call("Open"); }
    void Close() override { Call("Close"); }

    bool MicUnavailable() override { return Flag("MicUnavailable"); }
    Integer MicMin() override { return Level("MicMin"); }
    Integer MicMax() override { return Level("MicMax"); }
    Integer MicStep() override { return Level("MicStep"); }
    Integer MicVolume() override { return Level("MicVolume"); }
    void MicVolume(Long value) override { WriteProperty("MicVolume", value); }
    bool MasterUnavailable() override { return Flag("MasterUnavailable"); }
    Integer MasterMin() override { return Level("MasterMin"); }
    Integer MasterMax() override { return Level("MasterMax"); }
    Integer MasterStep() override { return Level("MasterStep"); }
    Integer MasterVolume() override { return Level("MasterVolume"); }
    void MasterVolume(Long value) override { WriteProperty("MasterVolume", value); }
    bool WaveUnavailable() override { return Flag("WaveUnavailable"); }
    Integer WaveMin() override { return Level("WaveMin"); }
    Integer WaveMax() override { return Level("WaveMax"); }
    Integer WaveStep() override { return Level("WaveStep"); }
    Integer WaveVolume() override { return Level("WaveVolume"); }
    void WaveVolume(Long value) override { WriteProperty("WaveVolume", value); }

private:
    bool Flag(const char* member) { return ReadProperty(member, false); }
    Integer Level(const char* member) { return ReadProperty<Integer>(member, 0); }
};

}  // namespace orvelle::replay
