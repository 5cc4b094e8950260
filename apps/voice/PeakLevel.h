// The loudest block since it was asked for last, across two threads: one adds, the other takes.
#pragma once

#include <atomic>

namespace orvelle {

class PeakLevel {
public:
    void Add(double level) {
        double loudest = peak.load();
        while (level > loudest && !peak.compare_exchange_weak(loudest, level)) {
        }
    }
    double Take() { return peak.exchange(0); }

private:
    std::atomic<double> peak = 0;
};

}  // namespace orvelle
