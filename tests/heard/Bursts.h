// Bursts of a tone that are spoken into one computer's microphone and heard, or not, in another one's ear: how much
// later each of them began there. Both are recorded by one probe, so that one clock tells both moments.
#pragma once

#include <string>
#include <vector>

#include "platform/Types.h"
#include "tests/pulse/SoundRecording.h"

namespace orvelle::heard {

constexpr Long BurstMilliseconds = 120;
constexpr Long BurstPeriod = 500;
constexpr double BurstHertz = 1000;

// The delay that this part of them does not exceed; 0 of none.
double PartOf(std::vector<double> delays, double part);

struct HeardBursts {
    std::vector<double> Delays;  // in milliseconds, of those that were heard; in their order
    int Spoken = 0;
    int Lost = 0;

    // A machine that is very busy misses some at the sound server itself.
    bool MostWereHeard() const { return Lost * 4 < Spoken; }
    double Median() const { return Part(0.5); }
    double Part(double part) const { return PartOf(Delays, part); }
    std::string Text() const;  // one line for people; with each delay where one was lost or late
};

// A burst counts as heard where a sound began in the ear within a period after it began in the mouth: the period is the
// bound of every delay here. The last one of the mouth counts only if the ear was recorded for long enough.
HeardBursts Compare(const pulse::SoundRecording& mouth, const pulse::SoundRecording& ear);

}  // namespace orvelle::heard
