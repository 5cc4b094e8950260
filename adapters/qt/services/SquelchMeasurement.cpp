#include "adapters/qt/services/SquelchMeasurement.h"

#include <algorithm>
#include <cmath>

namespace orvelle::qt {

namespace {

constexpr Long LevelsASecond = 1000 / SquelchMeasurement::Interval;
constexpr std::size_t RoomLevels = 2 * LevelsASecond;
constexpr std::size_t VoiceLevels = 3 * LevelsASecond;
constexpr Long PatienceLevels = 10 * LevelsASecond;  // for the first word
constexpr double RoomShare = 0.9;                    // of its levels count: not a click or a cough
constexpr double VoiceShare = 0.8;                   // are quieter than what counts as the voice: words have gaps
constexpr double LeastDistance = 6;                  // of the voice from the room
constexpr double Distorted = 95;                     // a tone at full scale
constexpr double Nothing = 0.5;
constexpr double Place = 1.0 / 3;  // from the room to the voice: words begin and end softly

double Quantile(std::vector<double> levels, double share) {
    const auto at = levels.begin() + static_cast<std::ptrdiff_t>(share * static_cast<double>(levels.size() - 1));
    std::nth_element(levels.begin(), at, levels.end());
    return *at;
}

}  // namespace

double AsLevel(double value) { return std::isnan(value) ? 0 : std::clamp(value, 0.0, 100.0); }

void SquelchMeasurement::Begin() {
    *this = SquelchMeasurement();
    step = Step::Waiting;
}

void SquelchMeasurement::Stop() { step = Step::Stopped; }

bool SquelchMeasurement::IsUnderWay() const {
    return step == Step::Waiting || step == Step::Quiet || step == Step::Speaking;
}

double SquelchMeasurement::Share() const {
    if (step == Step::Quiet) return static_cast<double>(room.size()) / RoomLevels;
    if (step == Step::Speaking) return static_cast<double>(voice.size()) / VoiceLevels;
    return IsUnderWay() || step == Step::Ready || step == Step::Silent ? 0 : 1;
}

bool SquelchMeasurement::Take(bool works, double level) {
    const Step before = step;
    level = AsLevel(level);
    if (step == Step::Silent && works && level >= Nothing) Begin();
    if (!IsUnderWay()) return false;
    if (!works) {
        Begin();
        return step != before;
    }
    loudest = std::max(loudest, level);
    if (step == Step::Speaking) {
        TakeVoice(level);
    } else {
        room.push_back(level);
        step = room.size() < RoomLevels ? Step::Quiet : Step::Speaking;
    }
    return step != before;
}

void SquelchMeasurement::TakeVoice(double level) {
    if (voice.empty() && level < Quantile(room, RoomShare) + LeastDistance) {
        if (++waited >= PatienceLevels) step = loudest < Nothing ? Step::Silent : Step::TooSoft;
        return;
    }
    voice.push_back(level);
    if (voice.size() >= VoiceLevels) step = Judge();
}

SquelchMeasurement::Step SquelchMeasurement::Judge() {
    const double quiet = Quantile(room, RoomShare);
    const double spoken = Quantile(voice, VoiceShare);
    if (spoken < quiet + LeastDistance) return Step::TooSoft;
    result = quiet + Place * (spoken - quiet);
    return loudest >= Distorted ? Step::TooLoud : Step::Measured;
}

}  // namespace orvelle::qt
