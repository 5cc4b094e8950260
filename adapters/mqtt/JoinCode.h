// The code that a person types on a computer that is to join the set-up: which computer it will be, and its key. Made
// where computers are added, read where they join. Six groups of four characters of Crockford's base 32, the last bits
// a CRC-8, so that a mistyped code is known before anything is tried.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace orvelle::mqtt {

// A computer's pre-shared key, made by the system's generator.
using Key = std::array<unsigned char, 13>;

// 26 hexadecimal digits, lower-case; reading takes capitals, too.
std::string WriteKey(const Key& key);
std::optional<Key> ReadKey(std::string_view text);

struct JoinCode {
    int Number = 0;  // of the identity, 1 to LastIdentity of Topics.h
    mqtt::Key Key{};
    bool operator==(const JoinCode&) const = default;
};

// Takes any case, blanks and hyphens anywhere, O for 0, I and L for 1. Nothing for a mistyped code.
std::optional<JoinCode> ReadJoinCode(std::string_view text);
std::string WriteJoinCode(const JoinCode& code);

}  // namespace orvelle::mqtt
