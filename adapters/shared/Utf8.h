// Texts of the panel are bytes. This is the one rule on what they mean: UTF-8, or Latin-1 where they are no valid UTF-8
// (a text that came from an old computer of the set-up). Called by whoever shows texts or sends them to others.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvelle {

// Whether all of it is UTF-8 as Unicode defines it: no surrogates, nothing longer than needed, nothing beyond U+10FFFF.
bool IsUtf8(std::string_view text);

// The text in UTF-8, by the rule above.
std::string ToUtf8(std::string_view text);

// For valid UTF-8: its characters (code points), and the beginning of it that has no more than `count` of them.
std::size_t CharactersOf(std::string_view text);
std::string_view FirstCharacters(std::string_view text, std::size_t count);

}  // namespace orvelle
