// How loud a tone was in what a sound server was sent, 22,050 samples a second: by Goertzel's algorithm, in stretches
// of a twentieth of a second, which tells frequencies apart that are 20 Hz from one another.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

namespace orvelle {

// The amplitude in the loudest stretch, as the samples' own.
inline double LoudnessOf(double frequency, const std::vector<std::int16_t>& samples) {
    constexpr std::size_t Stretch = 22050 / 20;
    const double twiceCosine = 2 * std::cos(2 * std::numbers::pi * frequency / 22050);
    double loudest = 0;
    for (std::size_t begin = 0; begin + Stretch <= samples.size(); begin += Stretch / 2) {
        double last = 0;
        double lastButOne = 0;
        for (std::size_t at = begin; at < begin + Stretch; ++at) {
            const double next = samples[at] + twiceCosine * last - lastButOne;
            lastButOne = last;
            last = next;
        }
        const double power = last * last + lastButOne * lastButOne - twiceCosine * last * lastButOne;
        loudest = std::max(loudest, 2 * std::sqrt(std::max(power, 0.0)) / Stretch);
    }
    return loudest;
}

}  // namespace orvelle
