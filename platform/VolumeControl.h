// The mixer of one audio device pair: a microphone line, a master line and a wave line. A line that is not
// unavailable has a range, a step and a level in the mixer's own units. Open starts watching the named devices and
// is answered by the Opened events from the loop.
#pragma once

#include <string>

#include "platform/Event.h"
#include "platform/Types.h"

namespace orvelle {

constexpr const char* DefaultMixerDevice = "<DEFAULT>";

class MixerControl {
public:
    virtual ~MixerControl() = default;

    // A device name, or DefaultMixerDevice.
    virtual void InputDevice(const std::string& name) = 0;
    virtual void OutputDevice(const std::string& name) = 0;
    virtual void Open() = 0;
    virtual void Close() = 0;

    virtual bool MicUnavailable() = 0;
    virtual Integer MicMin() = 0;
    virtual Integer MicMax() = 0;
    virtual Integer MicStep() = 0;
    virtual Integer MicVolume() = 0;
    virtual void MicVolume(Long value) = 0;
    virtual bool MasterUnavailable() = 0;
    virtual Integer MasterMin() = 0;
    virtual Integer MasterMax() = 0;
    virtual Integer MasterStep() = 0;
    virtual Integer MasterVolume() = 0;
    virtual void MasterVolume(Long value) = 0;
    virtual bool WaveUnavailable() = 0;
    virtual Integer WaveMin() = 0;
    virtual Integer WaveMax() = 0;
    virtual Integer WaveStep() = 0;
    virtual Integer WaveVolume() = 0;
    virtual void WaveVolume(Long value) = 0;

    Event<> InputOpened;
    Event<> InputClosed;
    Event<> MicVolumeChanged;
    Event<> OutputOpened;
    Event<> OutputClosed;
    Event<> MasterVolumeChanged;
    Event<> WaveVolumeChanged;
};

}  // namespace orvelle
