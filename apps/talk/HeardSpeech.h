// Whether one heard what another said: the levels of both in steps of ten milliseconds, how much they are alike and how
// much later the one is; as a file of sound and as a picture.
#pragma once

#include <QString>
#include <span>
#include <vector>

#include "platform/Types.h"

namespace orvelle {

constexpr Long LevelMilliseconds = 10;

// The root of the mean square of each ten milliseconds, 0 to 1.
std::vector<double> LevelsOf(std::span<const short> samples);

struct Likeness {
    double Correlation = 0;  // -1 to 1
    Long Later = 0;          // milliseconds, at which they are most alike
};
// `heard` may come later than `spoken` by half a second, and on a busy machine not by the same throughout: each second
// is compared by itself, and counts by how much was said in it.
Likeness Compare(const std::vector<double>& spoken, std::vector<double> heard);

// False where it can't be written.
bool WriteWaveFile(const QString& file, std::span<const short> samples);
bool DrawLevels(const QString& file, const std::vector<double>& spoken, const std::vector<double>& heard);

}  // namespace orvelle
