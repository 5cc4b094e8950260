// How fast sound may pass a stream: as fast as time goes, a little faster for clocks that differ, and at most some tens
// of milliseconds at once. What comes beyond that has waited while either side stood still; it is old, and nobody wants
// to hear it any more.
#pragma once

#include <chrono>
#include <cstddef>

namespace orvelle::pulse {

class SoundPace {
public:
    using Moment = std::chrono::steady_clock::time_point;

    // At 48 kHz; the stream begins anew. `samplesAtOnce` is what the server carries at once, where that is more.
    void Restart(std::size_t samplesAtOnce = 0);
    // How many of these samples may pass.
    std::size_t Allow(std::size_t samples, Moment now);

private:
    double most = 0;
    double inHand = 0;
    Moment last{};
};

}  // namespace orvelle::pulse
