#include "adapters/speech/RadioEffect.h"

#include <cmath>
#include <numbers>

namespace orvelle::speech {

namespace {

constexpr float Drive = 2.5F;       // rounds off at 1/2.5 of full scale
constexpr float HissLevel = 0.01F;  // some -55 dB within the band
// A filter that rings out ends in numbers so small that processors take a hundred times as long for them.
constexpr float Unheard = 1e-15F;

}  // namespace

RadioEffect::Filter::Filter(Keeps keeps, double frequency, double quality) {
    const double angle = 2 * std::numbers::pi * frequency / SampleRate;
    const double alpha = std::sin(angle) / (2 * quality);
    const double whole = 1 + alpha;
    const double side = keeps == Keeps::Below ? 1 - std::cos(angle) : 1 + std::cos(angle);
    ahead0 = ahead2 = static_cast<float>(side / 2 / whole);
    ahead1 = static_cast<float>((keeps == Keeps::Below ? side : -side) / whole);
    back1 = static_cast<float>(-2 * std::cos(angle) / whole);
    back2 = static_cast<float>((1 - alpha) / whole);
}

float RadioEffect::Filter::Next(float sample) {
    const float filtered = ahead0 * sample + state1;
    state1 = ahead1 * sample - back1 * filtered + state2;
    state2 = ahead2 * sample - back2 * filtered;
    return filtered;
}

void RadioEffect::Run(Block& voices, bool somebodyTalks) {
    hiss.To(somebodyTalks ? HissLevel : 0.0F);
    for (float& voice : voices) {
        float radio = voice + Unheard;
        for (Filter& filter : low) radio = filter.Next(radio);
        radio = std::tanh(radio * Drive) / Drive + hiss.Next() * Hiss() + Unheard;
        for (Filter& filter : high) radio = filter.Next(radio);
        voice += (radio - voice) * share.Next();
    }
}

// Evenly spread between -1 and 1.
float RadioEffect::Hiss() {
    noise = noise * 1664525 + 1013904223;
    return static_cast<float>(static_cast<std::int32_t>(noise)) / 2147483648.0F;
}

}  // namespace orvelle::speech
