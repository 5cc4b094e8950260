#include "adapters/x11/LayoutKeyNames.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "adapters/shared/KeyNames.h"
#include "adapters/shared/ScanCodes.h"

namespace orvelle {

namespace {

struct Range {
    char32_t First;
    char32_t Last;
};

// What lies beyond U+00BF without being a letter and may stand on a key: signs, spacing accents, punctuation and
// symbols of all scripts, private characters.
constexpr auto NoLetters = std::to_array<Range>({{0xD7, 0xD7},
                                                 {0xF7, 0xF7},
                                                 {0x2B0, 0x36F},
                                                 {0x2000, 0x2BFF},
                                                 {0x3000, 0x3004},
                                                 {0x3008, 0x3030},
                                                 {0xE000, 0xF8FF},
                                                 {0xFF00, 0xFF20}});

bool IsLetter(char32_t character) {
    if (character < 0x80) return character >= U'A' && character <= U'Z';
    if (character < 0xC0) return character == 0xAA || character == 0xB5 || character == 0xBA;
    return std::ranges::none_of(
        NoLetters, [=](const Range& range) { return character >= range.First && character <= range.Last; });
}

// Of a text that is one character in UTF-8, as a layout gives it.
char32_t CodePoint(std::string_view character) {
    if (character.empty()) return 0;
    const auto first = static_cast<unsigned char>(character.front());
    if (first < 0x80) return first;
    char32_t point = first & (0x3FU >> (character.size() - 1));
    for (const char next : character.substr(1)) point = point << 6 | (static_cast<unsigned char>(next) & 0x3FU);
    return point;
}

}  // namespace

std::string NameOfKey(KeyLayout& layout, int keyCode) {
    std::string character = layout.Character(keyCode);
    if (IsLetter(CodePoint(character))) return character;
    return std::string(DescribeKey(ScanCodeOfLinuxKey(keyCode - XKeyCodeOffset)).Name);
}

}  // namespace orvelle
