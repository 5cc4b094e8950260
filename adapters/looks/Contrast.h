// How well one colour stands out from another one: 1 for the same, 21 for black on white (WCAG 2, relative luminance).
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace orvelle {

// What a text or sign needs at least to be read.
constexpr double TextContrast = 4.5;

inline double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

inline double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one);
    const double b = Luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// `colour`, or the nearest to it on the way to black or white that stands out from every ground by `least`; black or
// white itself where none does.
QColor Readable(const QColor& colour, std::initializer_list<QColor> grounds, double least);
// `share` of the second colour, 0 to 1, in the first.
QColor Mixed(const QColor& first, const QColor& second, double share);

}  // namespace orvelle
