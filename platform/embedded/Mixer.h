// A mixer without a sound card: three lines with ranges and levels. Open is answered from the loop by InputOpened and
// OutputOpened, a level that changes by its VolumeChanged; a device that is unplugged, plugged or exchanged while the
// mixer is open by the Closed and Opened events. Nothing is raised after Close. Levels are kept within their range.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "platform/VolumeControl.h"
#include "platform/embedded/Changes.h"
#include "platform/embedded/Delivery.h"

namespace orvelle {

enum class MixerLine { Microphone, Master, Wave };
enum class MixerSide { Input, Output };  // the microphone line; the master and wave lines

struct MixerLevel {
    bool Unavailable = false;
    Integer Min = 0;
    Integer Max = 100;
    Integer Step = 5;
    Integer Volume = 50;
};

class EmbeddedMixer : public MixerControl {
public:
    explicit EmbeddedMixer(EventLoop& loop);

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

    // The deck's side.
    void SetLevel(MixerLine line, const MixerLevel& level);  // range and all; opens the side anew
    const MixerLevel& Level(MixerLine line) const { return levels[static_cast<std::size_t>(line)]; }
    void Move(MixerLine line, Long value);  // somebody else moved it
    void SetPlugged(MixerSide side, bool plugged);
    bool Plugged(MixerSide side) const { return sides[static_cast<std::size_t>(side)].Plugged; }
    std::string DeviceName(MixerSide side) const { return sides[static_cast<std::size_t>(side)].Device; }
    bool IsOpen() const { return open; }
    void SetDelay(Long milliseconds) { delivery.SetDelay(milliseconds); }
    Long Delay() const { return delivery.Delay(); }

    Changes Changed;

private:
    struct Side {
        std::string Device = DefaultMixerDevice;
        bool Plugged = true;
        bool Opened = false;  // the panel was told
    };

    MixerLevel& At(MixerLine line) { return levels[static_cast<std::size_t>(line)]; }
    Side& At(MixerSide side) { return sides[static_cast<std::size_t>(side)]; }
    void SetDevice(MixerSide side, const std::string& name);
    void Follow(MixerSide side);  // brings the panel to what is plugged
    void Reopen(MixerSide side);
    void Tell(MixerSide side, bool opened);

    Delivery delivery;
    bool open = false;
    std::array<MixerLevel, 3> levels;
    std::array<Side, 2> sides;
};

}  // namespace orvelle
