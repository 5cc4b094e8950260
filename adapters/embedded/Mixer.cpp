#include "adapters/embedded/Mixer.h"

#include <algorithm>

namespace orvelle::embedded {

namespace {

SoundDirection DirectionOf(MixerLine line) {
    return line == MixerLine::Microphone ? SoundDirection::Input : SoundDirection::Output;
}

Integer Within(const MixerLevel& level, Long value) {
    const Long least = std::min(level.Min, level.Max);
    const Long most = std::max(level.Min, level.Max);
    return static_cast<Integer>(std::clamp(value, least, most));
}

}  // namespace

Mixer::Mixer(EventLoop& loop) : changes(loop), delivery(loop) {}

void Mixer::InputDevice(const std::string& name) { SetDevice(SoundDirection::Input, name); }
void Mixer::OutputDevice(const std::string& name) { SetDevice(SoundDirection::Output, name); }

void Mixer::Open() {
    open = true;
    Follow(SoundDirection::Input);
    Follow(SoundDirection::Output);
    changes.Mark();
}

void Mixer::Close() {
    open = false;
    delivery.Drop();
    for (Side& side : sides) side.Opened = false;
    changes.Mark();
}

void Mixer::StandBack() {
    serving = false;
    changes.Mark();
}

bool Mixer::MicUnavailable() { return At(MixerLine::Microphone).Unavailable; }
Integer Mixer::MicMin() { return At(MixerLine::Microphone).Min; }
Integer Mixer::MicMax() { return At(MixerLine::Microphone).Max; }
Integer Mixer::MicStep() { return At(MixerLine::Microphone).Step; }
Integer Mixer::MicVolume() { return At(MixerLine::Microphone).Volume; }
void Mixer::MicVolume(Long value) { SetVolume(MixerLine::Microphone, value); }
bool Mixer::MasterUnavailable() { return At(MixerLine::Master).Unavailable; }
Integer Mixer::MasterMin() { return At(MixerLine::Master).Min; }
Integer Mixer::MasterMax() { return At(MixerLine::Master).Max; }
Integer Mixer::MasterStep() { return At(MixerLine::Master).Step; }
Integer Mixer::MasterVolume() { return At(MixerLine::Master).Volume; }
void Mixer::MasterVolume(Long value) { SetVolume(MixerLine::Master, value); }
bool Mixer::WaveUnavailable() { return At(MixerLine::Wave).Unavailable; }
Integer Mixer::WaveMin() { return At(MixerLine::Wave).Min; }
Integer Mixer::WaveMax() { return At(MixerLine::Wave).Max; }
Integer Mixer::WaveStep() { return At(MixerLine::Wave).Step; }
Integer Mixer::WaveVolume() { return At(MixerLine::Wave).Volume; }
void Mixer::WaveVolume(Long value) { SetVolume(MixerLine::Wave, value); }

void Mixer::SetLevel(MixerLine line, const MixerLevel& level) {
    At(line) = level;
    At(line).Volume = Within(level, level.Volume);
    Reopen(DirectionOf(line));
}

void Mixer::Move(MixerLine line, Long value) { SetVolume(line, value); }

// Whoever sets it, the panel or somebody else: a level that changes is told.
void Mixer::SetVolume(MixerLine line, Long value) {
    MixerLevel& level = At(line);
    const Integer volume = Within(level, value);
    if (level.Unavailable || level.Volume == volume) return;
    level.Volume = volume;
    changes.Mark();
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

void Mixer::SetPlugged(SoundDirection direction, bool plugged) {
    At(direction).Plugged = plugged;
    Follow(direction);
    changes.Mark();
}

void Mixer::SetDevice(SoundDirection direction, const std::string& name) {
    if (At(direction).Device == name) return;
    At(direction).Device = name;
    Reopen(direction);
}

void Mixer::Follow(SoundDirection direction) {
    if (open) delivery.Raise([this, direction] { Tell(direction, At(direction).Plugged); });
}

void Mixer::Reopen(SoundDirection direction) {
    if (open) delivery.Raise([this, direction] { Tell(direction, false); });
    Follow(direction);
    changes.Mark();
}

void Mixer::Tell(SoundDirection direction, bool opened) {
    if (At(direction).Opened == opened) return;
    At(direction).Opened = opened;
    if (direction == SoundDirection::Input)
        opened ? InputOpened() : InputClosed();
    else
        opened ? OutputOpened() : OutputClosed();
}

}  // namespace orvelle::embedded
