#include "input/ScanCodes.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "panel/Texts.h"
#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

Long Integral(const std::string& text) {
    const std::string number = Trimmed(text);
    const char* first = number.data();
    const char* const last = first + number.size();
    if (first != last && *first == '+') ++first;
    const std::size_t digit = number.find_first_of("0123456789.");
    double value = 0;
    const auto [end, error] = std::from_chars(first, last, value);
    if (error == std::errc::result_out_of_range) throw RuntimeError(RuntimeError::Overflow);
    if (error != std::errc() || end != last || digit == std::string::npos || digit > 1)
        throw RuntimeError(RuntimeError::TypeMismatch);
    value = std::nearbyint(value);
    if (value < std::numeric_limits<Long>::min() || value > std::numeric_limits<Long>::max())
        throw RuntimeError(RuntimeError::Overflow);
    return static_cast<Long>(value);
}

}  // namespace

Long ScanCodeReader::Next() {
    const std::size_t end = keys.find('+', next);
    const std::string code = keys.substr(next, end == std::string::npos ? end : end - next);
    next = end == std::string::npos ? end : end + 1;
    return Integral(code);
}

}  // namespace orvelle
