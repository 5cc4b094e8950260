#include "adapters/pulse/PulseMixer.h"

#include <utility>

namespace orvelle::pulse {

PulseMixer::PulseMixer(EventLoop& eventLoop, PulseDevices& serversDevices)
    : loop(eventLoop), devices(serversDevices), watch(devices.Observe([this] { FollowBoth(); })) {}

void PulseMixer::Open() {
    open = true;
    for (Side& side : sides) side.IsAsked = true;
    FollowSoon();
}

void PulseMixer::Close() {
    open = false;
    following.End();
    for (Side& side : sides) side = {.Device = side.Device};
}

Integer PulseMixer::LevelOf(DeviceKind kind) {
    const PulseDevice* const device = DeviceOf(kind);
    return device ? static_cast<Integer>(device->Level.Percent()) : Integer{0};
}

void PulseMixer::SetLevel(DeviceKind kind, Long value) {
    if (PulseDevice* const device = DeviceOf(kind)) device->Level.Set(value);
}

void PulseMixer::SetDevice(DeviceKind kind, const std::string& name) {
    if (std::exchange(Of(kind).Device, name) == name) return;
    Of(kind).IsExchanged = true;
    FollowSoon();
}

void PulseMixer::FollowSoon() {
    following = loop.After(0, [this] { FollowBoth(); });
}

void PulseMixer::FollowBoth() {
    Follow(DeviceKind::Source);
    Follow(DeviceKind::Sink);
}

// A handler may close the mixer or choose another device, so each step looks anew.
void PulseMixer::Follow(DeviceKind kind) {
    Side& side = Of(kind);
    const PulseDevice* device = DeviceOf(kind);
    if (open && side.IsOpen && (!device || side.IsExchanged || device->Index != side.Index)) Tell(kind, false);
    if (!open) return;
    side.IsExchanged = false;
    device = DeviceOf(kind);
    const bool isAsked = std::exchange(side.IsAsked, false);
    if (!device) return isAsked ? Tell(kind, false) : void();
    const Integer level = LevelOf(kind);
    const bool isMoved = std::exchange(side.Level, level) != level;
    side.Index = device->Index;
    if (!side.IsOpen || isAsked)
        Tell(kind, true);
    else if (isMoved)
        kind == DeviceKind::Source ? MicVolumeChanged() : MasterVolumeChanged();
}

void PulseMixer::Tell(DeviceKind kind, bool isOpen) {
    Of(kind).IsOpen = isOpen;
    if (kind == DeviceKind::Source)
        isOpen ? InputOpened() : InputClosed();
    else
        isOpen ? OutputOpened() : OutputClosed();
}

}  // namespace orvelle::pulse
