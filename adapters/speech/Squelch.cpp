#include "adapters/speech/Squelch.h"

#include <algorithm>
#include <cmath>

namespace orvelle::speech {

namespace {

constexpr double Quietest = -60;  // decibels, level 0
constexpr double QuietestHeard = -90;
constexpr double LoudestSquelched = -30;
constexpr double Silent = -200;
constexpr Long BlocksHeld = SquelchHold / BlockMilliseconds;

}  // namespace

double DecibelsOf(const Block& block) {
    double sum = 0;
    for (const float sample : block) sum += static_cast<double>(sample) * sample;
    return sum > 0 ? std::max(Silent, 10 * std::log10(sum / BlockSamples)) : Silent;
}

double LevelOf(const Block& block) { return std::clamp((DecibelsOf(block) - Quietest) / -Quietest * 100, 0.0, 100.0); }

double HeardLevelOf(const Block& block) {
    return std::clamp((DecibelsOf(block) - QuietestHeard) / (LoudestSquelched - QuietestHeard) * 100, 0.0, 100.0);
}

double HeardDecibels(double level) {
    return QuietestHeard + std::min(level, 100.0) / 100 * (LoudestSquelched - QuietestHeard);
}

bool SquelchHolding::Passes(bool loudEnough) {
    if (loudEnough) {
        blocksOpen = BlocksHeld;
        return true;
    }
    if (blocksOpen == 0) return false;
    --blocksOpen;
    return true;
}

void SquelchGate::Set(double value) { least = std::isnan(value) ? 0 : std::clamp(value, 0.0, 100.0); }

bool SquelchGate::Passes(const Block& block) {
    if (least >= 100) holding.Close();
    return least < 100 && holding.Passes(LevelOf(block) >= least);
}

}  // namespace orvelle::speech
