#include "adapters/speech/SignalTone.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace orvelle::speech {

namespace {

constexpr Long SignalSamples = SampleRate / 1000 * SignalMilliseconds;
constexpr Long EdgeSamples = SampleRate / 1000 * 5;  // to full scale and back, so that it does not click

float SampleOf(TalkSignal signal, Long place) {
    const double frequency = signal == TalkSignal::Beginning ? BeginningTone : EndTone;
    const Long fromEdge = std::min({place, SignalSamples - place, EdgeSamples});
    const double loudness = static_cast<double>(fromEdge) / EdgeSamples;
    return static_cast<float>(loudness * std::sin(2 * std::numbers::pi * frequency * place / SampleRate));
}

}  // namespace

void SignalTone::Sound(TalkSignal signal) { (sounding ? following : sounding) = signal; }

void SignalTone::Take(Block& block) {
    for (float& sample : block) {
        sample = sounding ? SampleOf(*sounding, samplesHeard) : 0;
        if (!sounding || ++samplesHeard < SignalSamples) continue;
        samplesHeard = 0;
        sounding = std::exchange(following, std::nullopt);
    }
}

}  // namespace orvelle::speech
