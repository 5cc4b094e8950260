// Numbers in voice packets, one to ten bytes long, big-endian: 0xxxxxxx; 10, 110 and 1110 and the rest of 14, 21 and 28
// bits; 0xF0 and four bytes; 0xF4 and eight; 0xF8 and another number, which is negated; 111111xx, the inverse of xx.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orvelle::mumble {

// In the shortest form.
void AppendVarint(std::vector<std::uint8_t>& packet, std::uint64_t number);

// Takes the number off the packet's beginning; none, and nothing is taken, where the packet ends before it does, or
// where a negated number is negated. A negative number is read as its two's complement: nobody counts so far.
std::optional<std::uint64_t> TakeVarint(std::span<const std::uint8_t>& packet);

}  // namespace orvelle::mumble
