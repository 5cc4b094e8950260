// How much of one tone is in a piece of sound, by Goertzel's algorithm under a Hann window, for all tests that listen.
// Pieces of 10 ms tell tones 200 Hz apart, pieces of 100 ms those 20 Hz apart.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <span>

namespace orvelle {

// The tone's amplitude, 1 for a sine of full scale; 0 of nothing. `frequency` in Hz.
inline double ToneAmplitude(std::span<const float> samples, double frequency, double sampleRate = 48000) {
    const double step = 2 * std::numbers::pi * frequency / sampleRate;
    const double coefficient = 2 * std::cos(step);
    double last = 0;
    double lastButOne = 0;
    double weights = 0;
    for (std::size_t index = 0; index < samples.size(); ++index) {
        const double place = 2 * std::numbers::pi * (static_cast<double>(index) + 0.5) / samples.size();
        const double weight = 0.5 - 0.5 * std::cos(place);
        const double now = samples[index] * weight + coefficient * last - lastButOne;
        lastButOne = last;
        last = now;
        weights += weight;
    }
    const double power = last * last + lastButOne * lastButOne - coefficient * last * lastButOne;
    return weights > 0 ? 2 * std::sqrt(std::max(0.0, power)) / weights : 0;
}

// The same in decibels, 0 for a sine of full scale, never less than -200.
inline double ToneDecibels(std::span<const float> samples, double frequency, double sampleRate = 48000) {
    return 20 * std::log10(std::max(1e-10, ToneAmplitude(samples, frequency, sampleRate)));
}

// The power of everything in it, in decibels: -3 for a sine of full scale, never less than -200.
inline double PowerDecibels(std::span<const float> samples) {
    double sum = 0;
    for (const float sample : samples) sum += static_cast<double>(sample) * sample;
    return samples.empty() ? -200 : 10 * std::log10(std::max(1e-20, sum / samples.size()));
}

}  // namespace orvelle
