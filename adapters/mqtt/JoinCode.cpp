#include "adapters/mqtt/JoinCode.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

namespace {

constexpr std::string_view Digits = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";  // Crockford's base 32
constexpr std::string_view HexDigits = "0123456789abcdef";
constexpr std::size_t CodeDigits = 24;
constexpr std::size_t BitsOfDigit = 5;
constexpr std::size_t GroupDigits = 4;

// The number, the key, the check byte: as many bits as the digits stand for.
using Bytes = std::array<unsigned char, 15>;
static_assert(Bytes().size() * 8 == CodeDigits * BitsOfDigit);

// CRC-8 with the polynomial 0x07 of all but the last.
unsigned char CheckByte(const Bytes& bytes) {
    unsigned check = 0;
    for (std::size_t place = 0; place + 1 < bytes.size(); ++place) {
        check ^= bytes[place];
        for (int bit = 0; bit < 8; ++bit) check = (check & 0x80) ? ((check << 1) ^ 0x07) & 0xFF : check << 1;
    }
    return static_cast<unsigned char>(check);
}

// What a typed character stands for, as its place in `digits`.
std::optional<unsigned> ValueOf(char typed, std::string_view digits) {
    const std::size_t place = digits.find(typed);
    return place != std::string_view::npos ? std::optional(static_cast<unsigned>(place)) : std::nullopt;
}

char AsDigit(char typed) {
    const char capital = static_cast<char>(std::toupper(static_cast<unsigned char>(typed)));
    if (capital == 'O') return '0';
    return capital == 'I' || capital == 'L' ? '1' : capital;
}

bool IsBetweenDigits(char typed) { return typed == '-' || std::isspace(static_cast<unsigned char>(typed)); }

}  // namespace

std::string WriteKey(const Key& key) {
    std::string text;
    for (const unsigned char byte : key) {
        text += HexDigits[byte >> 4];
        text += HexDigits[byte & 0xF];
    }
    return text;
}

std::optional<Key> ReadKey(std::string_view text) {
    Key key{};
    if (text.size() != 2 * key.size()) return std::nullopt;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const char typed = static_cast<char>(std::tolower(static_cast<unsigned char>(text[place])));
        const std::optional<unsigned> value = ValueOf(typed, HexDigits);
        if (!value) return std::nullopt;
        key[place / 2] = static_cast<unsigned char>(key[place / 2] << 4 | *value);
    }
    return key;
}

std::optional<JoinCode> ReadJoinCode(std::string_view text) {
    Bytes bytes{};
    std::size_t digits = 0;
    for (const char typed : text) {
        if (IsBetweenDigits(typed)) continue;
        const std::optional<unsigned> value = ValueOf(AsDigit(typed), Digits);
        if (!value || digits == CodeDigits) return std::nullopt;
        for (std::size_t bit = 0; bit < BitsOfDigit; ++bit) {
            const std::size_t place = digits * BitsOfDigit + bit;
            const unsigned isSet = *value >> (BitsOfDigit - 1 - bit) & 1;
            bytes[place / 8] = static_cast<unsigned char>(bytes[place / 8] | isSet << (7 - place % 8));
        }
        ++digits;
    }
    const int number = bytes.front();
    if (digits != CodeDigits || bytes.back() != CheckByte(bytes) || number < 1 || number > LastIdentity)
        return std::nullopt;
    JoinCode code{number, {}};
    std::copy(bytes.begin() + 1, bytes.end() - 1, code.Key.begin());
    return code;
}

std::string WriteJoinCode(const JoinCode& code) {
    Bytes bytes{};
    bytes.front() = static_cast<unsigned char>(code.Number);
    std::copy(code.Key.begin(), code.Key.end(), bytes.begin() + 1);
    bytes.back() = CheckByte(bytes);

    std::string text;
    for (std::size_t digit = 0; digit < CodeDigits; ++digit) {
        unsigned value = 0;
        for (std::size_t place = digit * BitsOfDigit; place < (digit + 1) * BitsOfDigit; ++place)
            value = value << 1 | (bytes[place / 8] >> (7 - place % 8) & 1);
        if (digit > 0 && digit % GroupDigits == 0) text += '-';
        text += Digits[value];
    }
    return text;
}

}  // namespace orvelle::mqtt
