#include "adapters/mumble/Varint.h"

#include <cstddef>

namespace orvelle::mumble {

namespace {

struct Form {
    std::uint8_t Mask;   // of the bits that tell the form
    std::uint8_t Mark;   // what they are
    std::size_t Follow;  // bytes behind the first one, whose other bits come first
};

constexpr Form Forms[] = {
    {0x80, 0x00, 0}, {0xC0, 0x80, 1}, {0xE0, 0xC0, 2}, {0xF0, 0xE0, 3}, {0xFF, 0xF0, 4}, {0xFF, 0xF4, 8},
};
constexpr std::uint8_t Negated = 0xF8;
constexpr std::uint8_t Inverted = 0xFC;  // and two bits

std::optional<std::uint64_t> TakePositive(std::span<const std::uint8_t>& packet) {
    if (packet.empty()) return std::nullopt;
    for (const Form& form : Forms) {
        if ((packet[0] & form.Mask) != form.Mark) continue;
        if (packet.size() <= form.Follow) return std::nullopt;
        std::uint64_t number = packet[0] & ~form.Mask;
        for (const std::uint8_t byte : packet.subspan(1, form.Follow)) number = number << 8 | byte;
        packet = packet.subspan(1 + form.Follow);
        return number;
    }
    return std::nullopt;
}

}  // namespace

void AppendVarint(std::vector<std::uint8_t>& packet, std::uint64_t number) {
    const Form* form = Forms;
    // The last form has room for every number.
    for (; form->Follow < 8; ++form) {
        const std::size_t bits = 8 * form->Follow + (form->Mask == 0xFF ? 0 : 7 - form->Follow);
        if (number >> bits == 0) break;
    }
    const auto first = static_cast<std::uint8_t>(form->Follow < 8 ? number >> (8 * form->Follow) : 0);
    packet.push_back(form->Mark | first);
    for (std::size_t byte = form->Follow; byte-- > 0;)
        packet.push_back(static_cast<std::uint8_t>(number >> (8 * byte)));
}

std::optional<std::uint64_t> TakeVarint(std::span<const std::uint8_t>& packet) {
    if (packet.empty()) return std::nullopt;
    const std::uint8_t first = packet[0];
    if ((first & Inverted) == Inverted) {
        packet = packet.subspan(1);
        return ~static_cast<std::uint64_t>(first & ~Inverted);
    }
    if (first != Negated) return TakePositive(packet);
    std::span<const std::uint8_t> rest = packet.subspan(1);
    const std::optional<std::uint64_t> number = TakePositive(rest);
    if (!number) return std::nullopt;
    packet = rest;
    return 0 - *number;
}

}  // namespace orvelle::mumble
