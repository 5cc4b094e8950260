// What all sound of the voice rooms is cut into, from the microphone to the ear: ten milliseconds of one channel at
// 48 kHz, which is what the voice servers' packets hold at the least and what the sound server is asked for.
#pragma once

#include <array>
#include <cstddef>

#include "platform/Types.h"

namespace orvelle::speech {

constexpr Long SampleRate = 48000;
constexpr std::size_t BlockSamples = 480;
constexpr Long BlockMilliseconds = 10;

// Full scale is -1 to 1; what lies outside is cut off where it leaves the program.
using Block = std::array<float, BlockSamples>;

constexpr Block Silence{};

}  // namespace orvelle::speech
