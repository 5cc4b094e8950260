// Hears what presses of a talk button lead to in one ear: how long after each of them a sound begins there, and how
// long after its release the sound ends. The pauses before and between are of no fixed length, so that no phase of any
// clock is favoured. Serves the program's loop while it waits. For bench/press-to-ear.
#pragma once

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "tests/pulse/SoundProbe.h"

namespace orvelle {

// What opens and closes a microphone, each giving the moment just before, and what became of it.
struct PressWay {
    std::function<pulse::Moment()> Press;
    std::function<pulse::Moment()> Release;
    std::vector<double> ToSound = {};  // milliseconds
    std::vector<double> ToSilence = {};
    int Lost = 0;    // presses that nobody heard, and releases that silence did not follow
    int Broken = 0;  // presses with a hole in what was heard, as on a machine that has no time for sound
};

class PressListener {
public:
    // The probe outlives this object. `source` as it records.
    PressListener(pulse::SoundProbe& probe, std::string source);

    // One press and its release; false where it is lost.
    bool Hear(PressWay& way);

private:
    void Pause(std::chrono::microseconds least, std::chrono::microseconds most);
    bool HasSound();

    pulse::SoundProbe& probe;
    const std::string ear;
    std::mt19937 numbers{20};
};

}  // namespace orvelle
