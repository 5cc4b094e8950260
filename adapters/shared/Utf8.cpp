#include "adapters/shared/Utf8.h"

#include <algorithm>

namespace orvelle {

namespace {

unsigned char ByteAt(std::string_view text, std::size_t place) { return static_cast<unsigned char>(text[place]); }

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// The bytes of the character that begins the text, 0 where none does (The Unicode Standard, table 3-7).
std::size_t FirstLength(std::string_view text) {
    const unsigned char first = ByteAt(text, 0);
    if (first < 0x80) return 1;
    if (first < 0xC2 || first > 0xF4) return 0;
    const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (text.size() < length || !std::all_of(text.begin() + 1, text.begin() + length, IsContinuation)) return 0;

    const unsigned char second = ByteAt(text, 1);
    const bool isTooLong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool isSurrogate = first == 0xED && second > 0x9F;
    const bool isBeyond = first == 0xF4 && second > 0x8F;
    return isTooLong || isSurrogate || isBeyond ? 0 : length;
}

}  // namespace

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = FirstLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string ToUtf8(std::string_view text) {
    if (IsUtf8(text)) return std::string(text);
    std::string converted;
    for (const char character : text) {
        const unsigned char byte = static_cast<unsigned char>(character);
        if (byte < 0x80) {
            converted += character;
        } else {
            converted += static_cast<char>(0xC0 | (byte >> 6));
            converted += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return converted;
}

std::size_t CharactersOf(std::string_view text) {
    return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), IsContinuation));
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (std::size_t characters = 0; end < text.size(); ++end)
        if (!IsContinuation(text[end]) && characters++ == count) break;
    return text.substr(0, end);
}

}  // namespace orvelle
