#include "tests/heard/Bursts.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace orvelle::heard {

namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr Long QuietBetween = pulse::QuietBetweenSounds;

}  // namespace

double PartOf(std::vector<double> delays, double part) {
    if (delays.empty()) return 0;
    std::ranges::sort(delays);
    return delays[std::min(delays.size() - 1, static_cast<std::size_t>(part * static_cast<double>(delays.size())))];
}

std::string HeardBursts::Text() const {
    char text[200];
    std::snprintf(text, sizeof text, "%d bursts, %d lost, least %.1f, median %.1f, p99 %.1f, greatest %.1f ms", Spoken,
                  Lost, Part(0), Median(), Part(0.99), Part(1));
    std::string all = text;
    if (Lost > 0 || Part(1) > 2 * Median())
        for (const double each : Delays) all += ' ' + std::to_string(static_cast<int>(each));
    return all;
}

HeardBursts Compare(const pulse::SoundRecording& mouth, const pulse::SoundRecording& ear) {
    HeardBursts heard;
    if (ear.Samples().empty()) return heard;
    const pulse::Moment end = ear.At(ear.Samples().size() - 1);
    const auto sounds = ear.Sounds();
    auto next = sounds.begin();
    for (const auto& [began, ended] : mouth.Sounds()) {
        const pulse::Moment latest = began + std::chrono::milliseconds(BurstPeriod);
        if (latest > end) break;
        // Whether this one began earlier, nobody knows.
        if (began <= mouth.At(0) + std::chrono::milliseconds(QuietBetween)) continue;
        next = std::find_if(next, sounds.end(), [&](const auto& sound) { return sound.first >= began; });
        ++heard.Spoken;
        if (next == sounds.end() || next->first >= latest)
            ++heard.Lost;
        else
            heard.Delays.push_back(Milliseconds(next->first - began).count());
    }
    return heard;
}

}  // namespace orvelle::heard
