// Finds the microphone's squelch while its user is quiet for two seconds and then speaks for three: between the two, as
// the levels have it that are taken each 50 ms. It waits for its user, for the microphone and for the voice, and counts
// levels, not time. Held by the dialogue that shows its steps.
#pragma once

#include <optional>
#include <vector>

#include "platform/Types.h"

namespace orvelle::qt {

// The unit of levels and squelch: 0 (silence) to 100. What lies outside is the nearer end, what is no number 0.
double AsLevel(double value);

class SquelchMeasurement {
public:
    static constexpr Long Interval = 50;  // milliseconds from level to level

    enum class Step {
        Ready,     // for its user to begin
        Waiting,   // for the microphone
        Quiet,     // the room is measured
        Speaking,  // the voice is waited for, then measured
        Measured,
        TooLoud,  // measured, and the voice is distorted
        TooSoft,  // no voice was louder than the room
        Silent,   // the microphone gave nothing at all; begins anew once something comes
        Stopped,
    };

    void Begin();  // also anew
    void Stop();
    // The loudest since the last one; a microphone that does not work begins anew. True where the step is another now.
    bool Take(bool works, double level);

    Step Now() const { return step; }
    bool IsUnderWay() const;
    double Share() const;  // of this step that is over, 0 to 1
    // Where it was measured.
    const std::optional<double>& Result() const { return result; }

private:
    void TakeVoice(double level);
    Step Judge();

    Step step = Step::Ready;
    std::vector<double> room, voice;
    double loudest = 0;
    Long waited = 0;  // levels, for the voice
    std::optional<double> result;
};

}  // namespace orvelle::qt
