// A mixer without a sound card: three lines with ranges and levels. Open is answered from the loop by InputOpened and
// OutputOpened, a level that changes by its VolumeChanged; a device that is unplugged, plugged or exchanged while the
// mixer is open by the Closed and Opened events. Nothing is raised after Close. Levels are kept within their range.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>

#include "adapters/shared/Changes.h"
#include "adapters/shared/Delivery.h"
#include "platform/VolumeControl.h"
#include "platform/sides/MixerSide.h"

namespace orvelle::embedded {

class Mixer : public MixerControl, public MixerSide {
public:
    explicit Mixer(EventLoop& loop);

    void InputDevice(const std::string& name) override;
    void OutputDevice(const std::string& name) override;
    void Open() override;
    void Close() override;

    bool MicUnavailable() override;
    Integer MicMin() override;
    Integer MicMax() override;
    Integer MicStep() override;
    Integer MicVolume() override;
    void MicVolume(Long value) override;
    bool MasterUnavailable() override;
    Integer MasterMin() override;
    Integer MasterMax() override;
    Integer MasterStep() override;
    Integer MasterVolume() override;
    void MasterVolume(Long value) override;
    bool WaveUnavailable() override;
    Integer WaveMin() override;
    Integer WaveMax() override;
    Integer WaveStep() override;
    Integer WaveVolume() override;
    void WaveVolume(Long value) override;

    // A real mixer serves from now on.
    void StandBack();

    // The mixer from its far side.
    void SetLevel(MixerLine line, const MixerLevel& level) override;
    const MixerLevel& Level(MixerLine line) const override { return levels[static_cast<std::size_t>(line)]; }
    void Move(MixerLine line, Long value) override;
    void SetPlugged(SoundDirection direction, bool plugged) override;
    bool Plugged(SoundDirection direction) const override { return At(direction).Plugged; }
    std::string DeviceName(SoundDirection direction) const override { return At(direction).Device; }
    bool IsOpen() const override { return open; }
    bool IsServing() const override { return serving; }
    void SetDelay(Long milliseconds) override { delivery.SetDelay(milliseconds); }
    Long Delay() const override { return delivery.Delay(); }
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }

private:
    struct Side {
        std::string Device = DefaultMixerDevice;
        bool Plugged = true;
        bool Opened = false;  // the panel was told
    };

    MixerLevel& At(MixerLine line) { return levels[static_cast<std::size_t>(line)]; }
    Side& At(SoundDirection direction) { return sides[static_cast<std::size_t>(direction)]; }
    const Side& At(SoundDirection direction) const { return sides[static_cast<std::size_t>(direction)]; }
    void SetVolume(MixerLine line, Long value);
    void SetDevice(SoundDirection direction, const std::string& name);
    void Follow(SoundDirection direction);  // brings the panel to what is plugged
    void Reopen(SoundDirection direction);
    void Tell(SoundDirection direction, bool opened);

    Changes changes;
    Delivery delivery;
    bool open = false;
    bool serving = true;
    std::array<MixerLevel, 3> levels;
    std::array<Side, 2> sides;
};

}  // namespace orvelle::embedded
