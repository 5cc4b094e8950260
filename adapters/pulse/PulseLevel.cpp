#include "adapters/pulse/PulseLevel.h"

#include <algorithm>
#include <utility>

namespace orvelle::pulse {

namespace {

constexpr Long SettlingMilliseconds = 500;

Long PercentOf(const pa_cvolume& volume) {
    const auto loudest = static_cast<Long>(std::min(pa_cvolume_max(&volume), PA_VOLUME_NORM));
    return (loudest * FullLevel + static_cast<Long>(PA_VOLUME_NORM / 2)) / static_cast<Long>(PA_VOLUME_NORM);
}

pa_volume_t VolumeOf(Long percent) {
    return (static_cast<pa_volume_t>(percent) * PA_VOLUME_NORM + FullLevel / 2) / FullLevel;
}

}  // namespace

PulseLevel::PulseLevel(EventLoop& eventLoop, std::function<void(const pa_cvolume&)> sendVolume,
                       std::function<void()> whenChanged)
    : loop(eventLoop), send(std::move(sendVolume)), changed(std::move(whenChanged)) {}

void PulseLevel::Set(Long newPercent) {
    const Long next = std::clamp(newPercent, Long{0}, FullLevel);
    if (next == percent) return;
    percent = next;
    isWanted = true;
    isFresh = true;
    settling.End();
    if (!isUnderWay) SendWanted();
    changed();
}

void PulseLevel::SendWanted() {
    isWanted = false;
    isUnderWay = true;
    sent = balance;
    if (pa_cvolume_max(&sent) == PA_VOLUME_MUTED)
        pa_cvolume_set(&sent, sent.channels, VolumeOf(percent));
    else
        pa_cvolume_scale(&sent, VolumeOf(percent));
    send(sent);
}

void PulseLevel::Receive() {
    isUnderWay = false;
    if (isWanted) return SendWanted();
    settling = loop.After(SettlingMilliseconds, [this] {
        isFresh = false;
        Follow();
    });
}

void PulseLevel::Hear(const pa_cvolume& volume) {
    heard = volume;
    const bool isOurs = sent.channels != 0 && pa_cvolume_equal(&heard, &sent) != 0;
    if (heard.channels != balance.channels || (!isOurs && pa_cvolume_max(&heard) != PA_VOLUME_MUTED)) balance = heard;
    if (!isFresh) Follow();
}

void PulseLevel::Follow() {
    const Long next = PercentOf(heard);
    if (std::exchange(percent, next) != next) changed();
}

}  // namespace orvelle::pulse
