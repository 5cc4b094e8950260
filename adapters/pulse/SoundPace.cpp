#include "adapters/pulse/SoundPace.h"

#include <algorithm>

#include "adapters/speech/Block.h"

namespace orvelle::pulse {

namespace {

constexpr double MostSamples = 0.060 * speech::SampleRate;
// So many samples for each that time brings: a stream that was late is soon even again.
constexpr double Surplus = 9.0 / 8;

}  // namespace

void SoundPace::Restart(std::size_t samplesAtOnce) {
    most = std::max(MostSamples, static_cast<double>(samplesAtOnce));
    inHand = most;
    last = {};
}

std::size_t SoundPace::Allow(std::size_t samples, Moment now) {
    const std::chrono::duration<double> gone = now - last;
    last = now;
    inHand = std::min(most, inHand + gone.count() * Surplus * speech::SampleRate);
    const std::size_t allowed = std::min(samples, static_cast<std::size_t>(inHand));
    inHand -= static_cast<double>(allowed);
    return allowed;
}

}  // namespace orvelle::pulse
