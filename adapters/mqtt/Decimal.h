// A number from 0 on as it stands in a topic or names a parameter: in digits, without a sign, a blank or a needless
// zero before it, so that there is one text for each.
#pragma once

#include <charconv>
#include <optional>
#include <string_view>

#include "platform/Types.h"

namespace orvelle::mqtt {

inline std::optional<Long> ReadDecimal(std::string_view text) {
    Long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    const bool isPlain = !text.starts_with('-') && (text == "0" || !text.starts_with('0'));
    return isWhole && isPlain ? std::optional(number) : std::nullopt;
}

}  // namespace orvelle::mqtt
