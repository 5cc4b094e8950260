#include "simulators/flightgear/OptionLines.h"

#include <algorithm>

namespace orvelle::simulators {

namespace {

constexpr const char* Blanks = " \t\r\n";

std::string OptionOf(const std::string& line) {
    const std::size_t first = line.find_first_not_of(Blanks);
    return first == std::string::npos ? "" : line.substr(first, line.find_last_not_of(Blanks) - first + 1);
}

}  // namespace

OptionLines::OptionLines(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
}

bool OptionLines::Has(const std::string& option) const {
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& line) { return OptionOf(line) == option; });
}

std::vector<std::string> OptionLines::TakeOut(const std::function<bool(const std::string&)>& isMeant) {
    std::vector<std::string> taken;
    std::erase_if(lines, [&](const std::string& line) {
        std::string option = OptionOf(line);
        if (!isMeant(option)) return false;
        taken.push_back(std::move(option));
        return true;
    });
    return taken;
}

void OptionLines::Append(const std::string& option) {
    const bool isOfDos = !lines.empty() && lines.front().ends_with("\r\n");
    const std::string end = isOfDos ? "\r\n" : "\n";
    if (!lines.empty() && !lines.back().ends_with('\n')) lines.back() += end;
    lines.push_back(option + end);
}

std::string OptionLines::Text() const {
    std::string text;
    for (const std::string& line : lines) text += line;
    return text;
}

}  // namespace orvelle::simulators
