#include "tests/pulse/SoundRecording.h"

#include <algorithm>
#include <cmath>

#include "adapters/speech/Block.h"
#include "tests/speech/Goertzel.h"

namespace orvelle::pulse {

namespace {

constexpr std::size_t MillisecondSamples = speech::SampleRate / 1000;
constexpr double NothingDecibels = -120;
constexpr double SineDecibels = 3.01;  // by which the power of a sine of full scale is below 0

std::chrono::nanoseconds LengthOf(std::size_t count) {
    return std::chrono::nanoseconds(count * std::chrono::nanoseconds(std::chrono::seconds(1)).count() /
                                    static_cast<std::size_t>(speech::SampleRate));
}

}  // namespace

void SoundRecording::Add(Moment came, std::span<const float> piece) {
    pieces.push_back({samples.size(), came - LengthOf(piece.size())});
    samples.insert(samples.end(), piece.begin(), piece.end());
}

Moment SoundRecording::At(std::size_t sample) const {
    const auto after = std::ranges::upper_bound(pieces, sample, {}, &Piece::First);
    if (after == pieces.begin()) return {};
    const Piece& piece = *std::prev(after);
    return piece.Began + LengthOf(sample - piece.First);
}

SoundRecording SoundRecording::Last(std::size_t count) const {
    SoundRecording last;
    if (pieces.empty()) return last;
    auto piece = std::prev(pieces.end());
    while (piece != pieces.begin() && samples.size() - piece->First < count) --piece;
    const std::size_t begin = piece->First;
    last.samples.assign(samples.begin() + static_cast<std::ptrdiff_t>(begin), samples.end());
    for (; piece != pieces.end(); ++piece) last.pieces.push_back({piece->First - begin, piece->Began});
    return last;
}

std::vector<std::pair<Moment, Moment>> SoundRecording::Sounds(double least, Long quiet) const {
    std::vector<std::pair<Moment, Moment>> sounds;
    Long quietFor = quiet;
    for (std::size_t begin = 0; begin + MillisecondSamples <= samples.size(); begin += MillisecondSamples) {
        const std::span millisecond(samples.data() + begin, MillisecondSamples);
        if (std::ranges::none_of(millisecond, [least](float sample) { return std::abs(sample) >= least; })) {
            ++quietFor;
            continue;
        }
        if (quietFor >= quiet) sounds.emplace_back(At(begin), Moment());
        sounds.back().second = At(begin + MillisecondSamples);
        quietFor = 0;
    }
    return sounds;
}

std::span<const float> SoundRecording::Between(Moment from, Moment to) const {
    const auto sampleAt = [this](Moment moment) {
        const auto after = std::ranges::upper_bound(pieces, moment, {}, &Piece::Began);
        if (after == pieces.begin()) return std::size_t{0};
        const Piece& piece = *std::prev(after);
        const std::size_t end = after == pieces.end() ? samples.size() : after->First;
        const std::chrono::duration<double> since = moment - piece.Began;
        return std::min(piece.First + static_cast<std::size_t>(since.count() * speech::SampleRate), end);
    };
    const std::size_t first = sampleAt(from);
    return {samples.data() + first, std::max(sampleAt(to), first) - first};
}

double SoundRecording::ToneLevel(double hertz, Moment from, Moment to) const {
    return std::max(ToneDecibels(Between(from, to), hertz), NothingDecibels);
}

double SoundRecording::Level(Moment from, Moment to) const {
    return std::max(PowerDecibels(Between(from, to)) + SineDecibels, NothingDecibels);
}

double SoundRecording::ToneLevel(double hertz) const { return ToneLevel(hertz, Moment::min(), Moment::max()); }
double SoundRecording::Level() const { return Level(Moment::min(), Moment::max()); }

}  // namespace orvelle::pulse
