// Bytes in tests, as they are published: pairs of hexadecimal digits, with blanks where a reader likes them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::mumble {

inline std::vector<std::uint8_t> BytesOf(std::string_view hexadecimal) {
    std::string digits;
    for (const char digit : hexadecimal)
        if (digit != ' ') digits += digit;
    std::vector<std::uint8_t> bytes;
    for (std::size_t place = 0; place + 1 < digits.size(); place += 2)
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(digits.substr(place, 2), nullptr, 16)));
    return bytes;
}

template <typename Bytes>
std::string HexadecimalOf(const Bytes& bytes) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string text;
    for (const auto each : bytes) {
        const auto byte = static_cast<std::uint8_t>(each);
        text += {Digits[byte >> 4], Digits[byte & 0xF]};
    }
    return text;
}

// 00 01 02 and so on.
inline std::vector<std::uint8_t> CountingBytes(std::size_t count) {
    std::vector<std::uint8_t> bytes(count);
    for (std::size_t index = 0; index < count; ++index) bytes[index] = static_cast<std::uint8_t>(index);
    return bytes;
}

}  // namespace orvelle::mumble
