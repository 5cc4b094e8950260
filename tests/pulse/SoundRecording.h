// What a source delivered, in mono at 48 kHz, with the moment of each sample by the monotonic clock: where a sound
// began and ended, and which tones it held. Moments are those at which the samples came; pieces of five milliseconds
// make them true to about as much.
#pragma once

#include <chrono>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "platform/Types.h"

namespace orvelle::pulse {

using Moment = std::chrono::steady_clock::time_point;

constexpr double LeastSound = 0.02;      // the loudness of what counts as a sound
constexpr Long QuietBetweenSounds = 40;  // milliseconds

class SoundRecording {
public:
    // A piece that has just come.
    void Add(Moment came, std::span<const float> samples);

    const std::vector<float>& Samples() const { return samples; }
    Moment At(std::size_t sample) const;
    // The last ones, and some more.
    SoundRecording Last(std::size_t count) const;

    // Each sound's first and last moment, in their order: one begins with the first millisecond whose loudest sample is
    // `least` or more, and ends with the last one before as many milliseconds of quiet, or with the recording.
    std::vector<std::pair<Moment, Moment>> Sounds(double least = LeastSound, Long quiet = QuietBetweenSounds) const;
    // Between the two moments, in dB of a sine of full scale: of one tone, and of all together. -120 is nothing.
    double ToneLevel(double hertz, Moment from, Moment to) const;
    double Level(Moment from, Moment to) const;
    // Likewise of the whole.
    double ToneLevel(double hertz) const;
    double Level() const;

private:
    struct Piece {
        std::size_t First;  // sample
        Moment Began;
    };

    std::span<const float> Between(Moment from, Moment to) const;

    std::vector<float> samples;
    std::vector<Piece> pieces;
};

}  // namespace orvelle::pulse
