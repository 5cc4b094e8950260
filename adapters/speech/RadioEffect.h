// What a voice sounds like by radio: the band of 300 to 3400 Hz, loud parts rounded off, a little hiss while somebody
// talks. Held by each output, which runs all voices through it together, as a receiver does.
#pragma once

#include <array>
#include <cstdint>

#include "adapters/speech/Block.h"
#include "adapters/speech/Ramp.h"

namespace orvelle::speech {

class RadioEffect {
public:
    void Switch(bool on) { share.To(on ? 1.0F : 0.0F); }
    // Whether it changes what it is given, or adds to it.
    bool IsHeard() const { return !share.IsNothing(); }
    void Run(Block& voices, bool somebodyTalks);

private:
    // A filter of second order; `quality` tells how sharply it bends.
    class Filter {
    public:
        enum class Keeps { Above, Below };
        Filter(Keeps keeps, double frequency, double quality);
        float Next(float sample);

    private:
        float ahead0, ahead1, ahead2;  // of what comes in
        float back1, back2;            // of what went out
        float state1 = 0;
        float state2 = 0;
    };

    float Hiss();

    Ramp share{0};
    Ramp hiss{0};
    std::uint32_t noise = 1;
    // Butterworth's: of fourth order below the band, of sixth order above it.
    std::array<Filter, 2> low{Filter{Filter::Keeps::Above, 300, 0.5412}, Filter{Filter::Keeps::Above, 300, 1.3066}};
    std::array<Filter, 3> high{Filter{Filter::Keeps::Below, 3400, 0.5176}, Filter{Filter::Keeps::Below, 3400, 0.7071},
                               Filter{Filter::Keeps::Below, 3400, 1.9319}};
};

}  // namespace orvelle::speech
