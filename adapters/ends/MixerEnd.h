// The mixer that the logic holds, in front of the one that serves now: its devices, whether it is open, and the order
// of its events stay right when another one takes over. The program chooses who serves, from the loop; the one that
// served before is closed, which the panel is told, and the next one is opened in its place. The mixers outlive it.
#pragma once

#include <string>

#include "platform/VolumeControl.h"

namespace orvelle::ends {

class MixerEnd : public MixerControl {
public:
    explicit MixerEnd(MixerControl& first);
    MixerEnd(const MixerEnd&) = delete;
    MixerEnd& operator=(const MixerEnd&) = delete;

    void Serve(MixerControl& mixer);

    void InputDevice(const std::string& name) override;
    void OutputDevice(const std::string& name) override;
    void Open() override;
    void Close() override;

    bool MicUnavailable() override { return serving->MicUnavailable(); }
    Integer MicMin() override { return serving->MicMin(); }
    Integer MicMax() override { return serving->MicMax(); }
    Integer MicStep() override { return serving->MicStep(); }
    Integer MicVolume() override { return serving->MicVolume(); }
    void MicVolume(Long value) override { serving->MicVolume(value); }
    bool MasterUnavailable() override { return serving->MasterUnavailable(); }
    Integer MasterMin() override { return serving->MasterMin(); }
    Integer MasterMax() override { return serving->MasterMax(); }
    Integer MasterStep() override { return serving->MasterStep(); }
    Integer MasterVolume() override { return serving->MasterVolume(); }
    void MasterVolume(Long value) override { serving->MasterVolume(value); }
    bool WaveUnavailable() override { return serving->WaveUnavailable(); }
    Integer WaveMin() override { return serving->WaveMin(); }
    Integer WaveMax() override { return serving->WaveMax(); }
    Integer WaveStep() override { return serving->WaveStep(); }
    Integer WaveVolume() override { return serving->WaveVolume(); }
    void WaveVolume(Long value) override { serving->WaveVolume(value); }

private:
    void Join();
    void Part();

    MixerControl* serving;
    std::string inputDevice = DefaultMixerDevice;
    std::string outputDevice = DefaultMixerDevice;
    bool isOpen = false;
    bool isInputOpen = false;  // the panel was told
    bool isOutputOpen = false;
};

}  // namespace orvelle::ends
