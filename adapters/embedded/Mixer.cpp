#include "adapters/embedded/Mixer.h"

#include <algorithm>

namespace orvelle {

namespace {

MixerSide SideOf(MixerLine line) { return line == MixerLine::Microphone ? MixerSide::Input : MixerSide::Output; }

Integer Within(const MixerLevel& level, Long value) {
    const Long least = std::min(level.Min, level.Max);
    const Long most = std::max(level.Min, level.Max);
    return static_cast<Integer>(std::clamp(value, least, most));
}

}  // namespace

EmbeddedMixer::EmbeddedMixer(EventLoop& loop) : Changed(loop), delivery(loop) {}

void EmbeddedMixer::InputDevice(const std::string& name) { SetDevice(MixerSide::Input, name); }
void EmbeddedMixer::OutputDevice(const std::string& name) { SetDevice(MixerSide::Output, name); }

void EmbeddedMixer::Open() {
    open = true;
    Follow(MixerSide::Input);
    Follow(MixerSide::Output);
    Changed.Mark();
}

void EmbeddedMixer::Close() {
    open = false;
    delivery.Drop();
    for (Side& side : sides) side.Opened = false;
    Changed.Mark();
}

bool EmbeddedMixer::MicUnavailable() { return At(MixerLine::Microphone).Unavailable; }
Integer EmbeddedMixer::MicMin() { return At(MixerLine::Microphone).Min; }
Integer EmbeddedMixer::MicMax() { return At(MixerLine::Microphone).Max; }
Integer EmbeddedMixer::MicStep() { return At(MixerLine::Microphone).Step; }
Integer EmbeddedMixer::MicVolume() { return At(MixerLine::Microphone).Volume; }
void EmbeddedMixer::MicVolume(Long value) { Move(MixerLine::Microphone, value); }
bool EmbeddedMixer::MasterUnavailable() { return At(MixerLine::Master).Unavailable; }
Integer EmbeddedMixer::MasterMin() { return At(MixerLine::Master).Min; }
Integer EmbeddedMixer::MasterMax() { return At(MixerLine::Master).Max; }
Integer EmbeddedMixer::MasterStep() { return At(MixerLine::Master).Step; }
Integer EmbeddedMixer::MasterVolume() { return At(MixerLine::Master).Volume; }
void EmbeddedMixer::MasterVolume(Long value) { Move(MixerLine::Master, value); }
bool EmbeddedMixer::WaveUnavailable() { return At(MixerLine::Wave).Unavailable; }
Integer EmbeddedMixer::WaveMin() { return At(MixerLine::Wave).Min; }
Integer EmbeddedMixer::WaveMax() { return At(MixerLine::Wave).Max; }
Integer EmbeddedMixer::WaveStep() { return At(MixerLine::Wave).Step; }
Integer EmbeddedMixer::WaveVolume() { return At(MixerLine::Wave).Volume; }
void EmbeddedMixer::WaveVolume(Long value) { Move(MixerLine::Wave, value); }

void EmbeddedMixer::SetLevel(MixerLine line, const MixerLevel& level) {
    At(line) = level;
    At(line).Volume = Within(level, level.Volume);
    Reopen(SideOf(line));
}

void EmbeddedMixer::Move(MixerLine line, Long value) {
    MixerLevel& level = At(line);
    const Integer volume = Within(level, value);
    if (level.Unavailable || level.Volume == volume) return;
    level.Volume = volume;
    Changed.Mark();
    if (!open) return;
    delivery.Raise([this, line] {
        switch (line) {
            case MixerLine::Microphone:
                return MicVolumeChanged();
            case MixerLine::Master:
                return MasterVolumeChanged();
            case MixerLine::Wave:
                return WaveVolumeChanged();
        }
    });
}

void EmbeddedMixer::SetPlugged(MixerSide side, bool plugged) {
    At(side).Plugged = plugged;
    Follow(side);
    Changed.Mark();
}

void EmbeddedMixer::SetDevice(MixerSide side, const std::string& name) {
    if (At(side).Device == name) return;
    At(side).Device = name;
    Reopen(side);
}

void EmbeddedMixer::Follow(MixerSide side) {
    if (open) delivery.Raise([this, side] { Tell(side, At(side).Plugged); });
}

void EmbeddedMixer::Reopen(MixerSide side) {
    if (open) delivery.Raise([this, side] { Tell(side, false); });
    Follow(side);
    Changed.Mark();
}

void EmbeddedMixer::Tell(MixerSide side, bool opened) {
    if (At(side).Opened == opened) return;
    At(side).Opened = opened;
    if (side == MixerSide::Input)
        opened ? InputOpened() : InputClosed();
    else
        opened ? OutputOpened() : OutputClosed();
}

}  // namespace orvelle
