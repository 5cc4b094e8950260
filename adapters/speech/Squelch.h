// How loud a sound must be to pass. The gate opens with the first block that is loud enough, and stays open for a while
// after the last one, so that words are not cut.
#pragma once

#include "adapters/speech/Block.h"

namespace orvelle::speech {

// Of a block, by its power: 0 (-60 dB of full scale and less) to 100 (full scale).
double LevelOf(const Block& block);

class SquelchGate {
public:
    // 0 (every sound) to 100 (none), in the unit of LevelOf; others count as the nearer end.
    void Set(double value) { least = value; }
    // Whether this block passes; to be asked once for each.
    bool Passes(const Block& block);
    // Before a new talk.
    void Close() { blocksOpen = 0; }

private:
    double least = 0;
    Long blocksOpen = 0;  // still
};

}  // namespace orvelle::speech
