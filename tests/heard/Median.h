// The value that a part of some values does not exceed; 0 of none.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace orvelle::heard {

inline double PartOf(std::vector<double> values, double part) {
    if (values.empty()) return 0;
    std::ranges::sort(values);
    return values[std::min(values.size() - 1, static_cast<std::size_t>(part * static_cast<double>(values.size())))];
}

inline double MedianOf(const std::vector<double>& values) { return PartOf(values, 0.5); }

}  // namespace orvelle::heard
