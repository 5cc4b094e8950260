// The mixer of one audio device pair: a microphone line on the input, a master line and a wave line on the output. A
// line that is not unavailable has a range, a step and a level in the mixer's own units. All events come from the loop,
// and only while the mixer is open.
//
// A level that changed is told by its event whoever changed it, the panel's own write included: a slider takes the
// value without writing it again, so the echo ends there. A write counts at once, so that a reading behind it never
// gives an older level. It is taken for the nearer end of the range; one that changes nothing, or goes to an
// unavailable line, is told by no event.
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
    // Another name while the mixer is open closes the side and opens it anew, each with its event.
    virtual void InputDevice(const std::string& name) = 0;
    virtual void OutputDevice(const std::string& name) = 0;
    // Watches the two devices: Opened for each that is there or comes, Closed for each that goes. Harmless while open.
    virtual void Open() = 0;
    // Nothing is raised after it, no Closed either.
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
