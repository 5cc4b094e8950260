#include "simulators/directory/AddressText.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "adapters/shared/Utf8.h"

namespace orvelle::directory {

namespace {

constexpr std::string_view Scheme = "https://";
constexpr std::size_t Longest = 2000;  // bytes

bool IsBlankOrControl(char character) { return static_cast<unsigned char>(character) <= ' ' || character == '\x7F'; }

std::string Trimmed(const std::string& text) {
    const auto begin = std::ranges::find_if_not(text, IsBlankOrControl);
    const auto end = std::find_if_not(text.rbegin(), text.rend(), IsBlankOrControl).base();
    return begin < end ? std::string(begin, end) : "";
}

// As "https://"; "" where none is named. A port's colon is no scheme's.
std::string SchemeOf(const std::string& text) {
    const std::size_t colon = text.find("://");
    if (colon == std::string::npos || colon > text.find_first_of("/?#")) return "";
    std::string scheme = text.substr(0, colon + 3);
    std::ranges::transform(scheme, scheme.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return scheme;
}

}  // namespace

AddressText ReadAddress(const std::string& text) {
    const std::string typed = Trimmed(text);
    const std::string scheme = SchemeOf(typed);
    if (!scheme.empty() && scheme != Scheme)
        return {"", typed + " is not fetched: the address of a directory begins with https://."};
    const std::string rest = typed.substr(scheme.size());
    const bool hasHost = rest.find_first_of("/?#:@") != 0 && !rest.empty();
    if (!hasHost || rest.size() > Longest || !IsUtf8(rest) || std::ranges::any_of(rest, IsBlankOrControl))
        return {"", "\"" + typed.substr(0, Longest) + "\" is no address of a directory."};
    return {std::string(Scheme) + rest, ""};
}

}  // namespace orvelle::directory
