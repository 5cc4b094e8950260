// The mixer of one pair of the sound server's devices: the microphone line is the source's volume, the master line the
// sink's, each from 0 to 100 percent of the full volume. The wave line is unavailable: a server has a volume for each
// program, none for all of them beside the device's own. DefaultMixerDevice is the server's default wherever it moves.
//
// Open is answered for each side, also when it was open: Opened, or Closed where the device isn't there. Without a
// server both sides are closed until one is there.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "adapters/pulse/PulseDevices.h"
#include "platform/VolumeControl.h"

namespace orvelle::pulse {

class PulseMixer : public MixerControl {
public:
    // The devices outlive it.
    PulseMixer(EventLoop& loop, PulseDevices& serversDevices);

    void InputDevice(const std::string& name) override { SetDevice(DeviceKind::Source, name); }
    void OutputDevice(const std::string& name) override { SetDevice(DeviceKind::Sink, name); }
    void Open() override;
    void Close() override;

    bool MicUnavailable() override { return !DeviceOf(DeviceKind::Source); }
    Integer MicMin() override { return 0; }
    Integer MicMax() override { return FullLevel; }
    Integer MicStep() override { return Step; }
    Integer MicVolume() override { return LevelOf(DeviceKind::Source); }
    void MicVolume(Long value) override { SetLevel(DeviceKind::Source, value); }
    bool MasterUnavailable() override { return !DeviceOf(DeviceKind::Sink); }
    Integer MasterMin() override { return 0; }
    Integer MasterMax() override { return FullLevel; }
    Integer MasterStep() override { return Step; }
    Integer MasterVolume() override { return LevelOf(DeviceKind::Sink); }
    void MasterVolume(Long value) override { SetLevel(DeviceKind::Sink, value); }
    bool WaveUnavailable() override { return true; }
    Integer WaveMin() override { return 0; }
    Integer WaveMax() override { return 0; }
    Integer WaveStep() override { return 0; }
    Integer WaveVolume() override { return 0; }
    void WaveVolume(Long) override {}

private:
    static constexpr Integer Step = 5;

    struct Side {
        std::string Device = DefaultMixerDevice;
        bool IsAsked = false;      // Open waits for its answer
        bool IsExchanged = false;  // the device has got another name
        // What the panel was told last:
        bool IsOpen = false;
        std::uint32_t Index = 0;
        Integer Level = 0;
    };

    Side& Of(DeviceKind kind) { return sides[static_cast<std::size_t>(kind)]; }
    PulseDevice* DeviceOf(DeviceKind kind) { return devices.Find(kind, Of(kind).Device); }
    Integer LevelOf(DeviceKind kind);
    void SetDevice(DeviceKind kind, const std::string& name);
    void SetLevel(DeviceKind kind, Long value);
    void FollowSoon();
    void Follow(DeviceKind kind);
    void Tell(DeviceKind kind, bool isOpen);
    void FollowBoth();

    EventLoop& loop;
    PulseDevices& devices;
    bool open = false;
    std::array<Side, 2> sides;
    Ticket watch, following;
};

}  // namespace orvelle::pulse
