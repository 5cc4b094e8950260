// The short tones that tell a talk's beginning and its end, at full scale; who mixes them gives them their level. A
// tone that is asked for while another one sounds follows it.
#pragma once

#include <optional>

#include "adapters/speech/Block.h"

namespace orvelle::speech {

enum class TalkSignal { Beginning, End };

constexpr double BeginningTone = 2000;  // Hz
constexpr double EndTone = 1650;
constexpr Long SignalMilliseconds = 50;

class SignalTone {
public:
    void Sound(TalkSignal signal);
    bool IsSounding() const { return sounding.has_value(); }
    // The next ten milliseconds, silent where none sounds.
    void Take(Block& block);

private:
    std::optional<TalkSignal> sounding;
    std::optional<TalkSignal> following;
    Long samplesHeard = 0;
};

}  // namespace orvelle::speech
