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
constexpr Long Hole = 5;  // milliseconds of silence

double MillisecondsBetween(pulse::Moment from, pulse::Moment to);

struct HeardBursts {
    std::vector<double> Delays{};  // in milliseconds, of those that were heard; in their order
    std::vector<double> Ours{};    // likewise what of each is more than the reference had, where there was one
    int Spoken = 0;
    int Lost = 0;
    int Excused = 0;  // which the machine had no time for, as the reference tells; counted nowhere else

    double Median() const { return Part(0.5); }
    // The delay that this part of them does not exceed.
    double Part(double part) const;
    double OursInTheMedian() const;
    std::string Text() const;  // one line for people; with each delay where one was lost or late
    void Add(const HeardBursts& more);
};

// A burst counts as heard where a sound began in the ear within a period after it began in the mouth: the period is the
// bound of every delay here. The last one of the mouth counts only if the ear was recorded for long enough.
HeardBursts Compare(const pulse::SoundRecording& mouth, const pulse::SoundRecording& ear);
// The same, but they count only where all came through the reference in time and without a hole.
HeardBursts Compare(const pulse::SoundRecording& mouth, const pulse::SoundRecording& ear,
                    const pulse::SoundRecording& reference);

}  // namespace orvelle::heard
