// How loud the loudest click in a steady tone is, in dB of full scale: a jump within a wave counts by its height. Of
// the tone itself nothing is left but what a wave of up to 500 Hz bends within a sample, -53 dB at half of full scale.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

namespace orvelle::heard {

inline double LoudestClick(std::span<const float> samples) {
    float largest = 1e-6F;
    for (std::size_t index = 2; index < samples.size(); ++index)
        largest = std::max(largest, std::abs(samples[index] - 2 * samples[index - 1] + samples[index - 2]));
    return 20 * std::log10(largest);
}

}  // namespace orvelle::heard
