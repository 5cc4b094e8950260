#include "panel/Texts.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace orvelle {

namespace {

template <typename Map>
std::string Mapped(std::string text, Map map) {
    std::transform(text.begin(), text.end(), text.begin(), map);
    return text;
}

}  // namespace

std::string UpperCase(std::string text) {
    return Mapped(std::move(text), [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
}

std::string LowerCase(std::string text) {
    return Mapped(std::move(text), [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
}

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Without(std::string text, const std::string& part) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at))
        text.erase(at, part.size());
    return text;
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

double LeadingNumber(const std::string& text) {
    std::size_t start = text.find_first_not_of(' ');
    if (start == std::string::npos) return 0;
    if (text[start] == '+' && text.find_first_of("0123456789.", start + 1) == start + 1) ++start;
    double value = 0;
    if (text.find_first_of("0123456789.", start) > start + 1) return 0;  // no "inf", no "nan"
    std::from_chars(text.data() + start, text.data() + text.size(), value);
    return value;
}

std::string NumberText(float value) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed).ptr;
    return {digits.data(), end};
}

}  // namespace orvelle
