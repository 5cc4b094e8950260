#include "tests/heard/Bursts.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <utility>

#include "tests/heard/Median.h"

namespace orvelle::heard {

namespace {

using Sounds = std::vector<std::pair<pulse::Moment, pulse::Moment>>;

constexpr Long QuietBetween = pulse::QuietBetweenSounds;
// What the reference may take where the sound server and the probe were served in time, and the length of a
// burst without a hole.
constexpr double MostOfReference = 60;
constexpr double LeastOfBurst = BurstMilliseconds - 10;

// The first sound that began then or within a period; null where there is none.
const Sounds::value_type* BeganAfter(const Sounds& sounds, pulse::Moment moment) {
    const auto next = std::ranges::lower_bound(sounds, moment, {}, [](const auto& sound) { return sound.first; });
    return next != sounds.end() && next->first < moment + std::chrono::milliseconds(BurstPeriod) ? &*next : nullptr;
}

// How long the machine itself took for a burst; nothing where that tells nothing.
std::optional<double> TakenBy(const Sounds& reference, pulse::Moment began) {
    const auto* const came = BeganAfter(reference, began);
    if (!came || MillisecondsBetween(began, came->first) > MostOfReference ||
        MillisecondsBetween(came->first, came->second) < LeastOfBurst)
        return {};
    return MillisecondsBetween(began, came->first);
}

// `reference` is null where there is none.
HeardBursts CompareAll(const pulse::SoundRecording& mouth, const pulse::SoundRecording& ear,
                       const pulse::SoundRecording* reference) {
    HeardBursts heard;
    int excused = 0;
    if (ear.Samples().empty() || (reference && reference->Samples().empty())) return heard;
    pulse::Moment end = ear.At(ear.Samples().size() - 1);
    if (reference) end = std::min(end, reference->At(reference->Samples().size() - 1));
    const Sounds heardSounds = ear.Sounds();
    const Sounds referenceSounds = reference ? reference->Sounds(pulse::LeastSound, Hole) : Sounds();
    for (const auto& [began, ended] : mouth.Sounds()) {
        if (began + std::chrono::milliseconds(BurstPeriod) > end) break;
        // Whether this one began earlier, nobody knows.
        if (began <= mouth.At(0) + std::chrono::milliseconds(QuietBetween)) continue;
        const std::optional<double> taken = reference ? TakenBy(referenceSounds, began) : 0;
        if (!taken) {
            ++excused;
            continue;
        }
        ++heard.Spoken;
        const auto* const came = BeganAfter(heardSounds, began);
        if (!came) {
            ++heard.Lost;
            continue;
        }
        heard.Delays.push_back(MillisecondsBetween(began, came->first));
        if (reference) heard.Ours.push_back(heard.Delays.back() - *taken);
    }
    // What was late beside one of them, or has grown by that, is excused as well.
    if (excused > 0) return {.Excused = heard.Spoken + excused};
    return heard;
}

}  // namespace

double MillisecondsBetween(pulse::Moment from, pulse::Moment to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

double HeardBursts::Part(double part) const { return PartOf(Delays, part); }
double HeardBursts::OursInTheMedian() const { return MedianOf(Ours); }

std::string HeardBursts::Text() const {
    char text[300];
    std::snprintf(text, sizeof text, "%d bursts, %d lost, least %.1f, median %.1f, p99 %.1f, greatest %.1f ms", Spoken,
                  Lost, Part(0), Median(), Part(0.99), Part(1));
    std::string all = text;
    if (!Ours.empty()) {
        std::snprintf(text, sizeof text, "; median over the sound server's own loopback %.1f ms; %d more were excused",
                      OursInTheMedian(), Excused);
        all += text;
    }
    if (Lost > 0 || Part(1) > 2 * Median())
        for (const double each : Delays) all += ' ' + std::to_string(static_cast<int>(each));
    return all;
}

void HeardBursts::Add(const HeardBursts& more) {
    Delays.insert(Delays.end(), more.Delays.begin(), more.Delays.end());
    Ours.insert(Ours.end(), more.Ours.begin(), more.Ours.end());
    Spoken += more.Spoken;
    Lost += more.Lost;
    Excused += more.Excused;
}

HeardBursts Compare(const pulse::SoundRecording& mouth, const pulse::SoundRecording& ear) {
    return CompareAll(mouth, ear, nullptr);
}

HeardBursts Compare(const pulse::SoundRecording& mouth, const pulse::SoundRecording& ear,
                    const pulse::SoundRecording& reference) {
    return CompareAll(mouth, ear, &reference);
}

}  // namespace orvelle::heard
