// How loud a sound must be to pass. The gate opens with the first block that is loud enough, and stays open for a while
// after the last one, so that words are not cut. The microphone's asks the user's value, the mixes' their own
// threshold.
#pragma once

#include "adapters/speech/Block.h"

namespace orvelle::speech {

constexpr Long SquelchHold = 300;  // milliseconds

// The power of a block in decibels, 0 for full scale; -200 for silence and for what is no number.
double DecibelsOf(const Block& block);

// Of a block, by its power: 0 (-60 dB of full scale and less) to 100 (full scale).
double LevelOf(const Block& block);

// The same for what is heard, in the unit of an output's squelch: 0 (-90 dB and less) to 100 (-30 dB and more).
double HeardLevelOf(const Block& block);
// A value of that squelch in decibels.
double HeardDecibels(double level);

// What both gates have: what was loud enough once passes for as long as it holds. Asked once for each block.
class SquelchHolding {
public:
    bool Passes(bool loudEnough);
    void Close() { blocksOpen = 0; }

private:
    Long blocksOpen = 0;  // still
};

class SquelchGate {
public:
    // 0 (every sound) to 100 (none), in the unit of LevelOf; others count as the nearer end, what is no number as 0.
    void Set(double value);
    // Whether this block passes; to be asked once for each.
    bool Passes(const Block& block);
    // Before a new talk.
    void Close() { holding.Close(); }

private:
    double least = 0;
    SquelchHolding holding;
};

}  // namespace orvelle::speech
