// A factor that goes to its new value within five milliseconds, so that nothing clicks. Asked once for each sample.
#pragma once

#include "adapters/speech/Block.h"

namespace orvelle::speech {

class Ramp {
public:
    explicit Ramp(float value) : now(value), end(value) {}

    void To(float value) {
        if (value == end) return;
        end = value;
        samplesLeft = Samples;
        step = (end - now) / Samples;
    }
    // At once, where nothing is heard that could click.
    void Jump(float value) {
        now = end = value;
        samplesLeft = 0;
    }
    float Next() {
        if (samplesLeft == 0) return end;
        now += step;
        if (--samplesLeft == 0) now = end;
        return now;
    }
    // Whether it is nothing for now, and so stays until it is told.
    bool IsNothing() const { return samplesLeft == 0 && end == 0; }
    float End() const { return end; }

private:
    static constexpr Long Samples = SampleRate / 1000 * 5;

    float now;
    float end;
    float step = 0;
    Long samplesLeft = 0;
};

}  // namespace orvelle::speech
