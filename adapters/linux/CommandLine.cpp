#include "adapters/linux/CommandLine.h"

namespace orvelle::linux {

namespace {

bool TakesName(const CommandWord& word) {
    return !word.IsQuoted && (word.Text == "/join1" || word.Text == "/callsign");
}

// Whether a word begins there that begins with a slash and goes on.
bool IsOption(std::string_view line, std::size_t at) {
    return line[at] == '/' && at + 1 < line.size() && line[at + 1] != ' ';
}

// Where the name that begins at `start` ends, behind its last word. What holds a quote or a tab was written by the
// user: that is parted as usual, and ends at `start`.
std::size_t EndOfName(std::string_view line, std::size_t start) {
    std::size_t end = line.size();
    for (std::size_t at = start + 1; at < line.size() && end == line.size(); ++at)
        if (line[at - 1] == ' ' && IsOption(line, at)) end = at;
    const std::string_view name = line.substr(start, end - start);
    if (name.find_first_of("\"\t") != std::string_view::npos) return start;
    return start + name.find_last_not_of(' ') + 1;
}

}  // namespace

std::vector<CommandWord> SplitCommandLine(std::string_view line) {
    const auto isBlank = [](char character) { return character == ' ' || character == '\t'; };
    std::vector<CommandWord> words;
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && isBlank(line[at])) ++at;
        if (at == line.size()) return words;

        CommandWord word{"", 0, false};
        bool isInside = false;
        for (; at < line.size() && (isInside || !isBlank(line[at])); ++at) {
            if (line[at] == '"') {
                isInside = !isInside;
                word.IsQuoted = true;
            } else {
                word.Text += line[at];
            }
        }
        word.End = at;
        words.push_back(std::move(word));
        if (!TakesName(words.back())) continue;

        const std::size_t start = line.find_first_not_of(' ', at);
        if (start == std::string_view::npos || IsOption(line, start)) continue;
        at = EndOfName(line, start);
        if (at != start) words.push_back({std::string(line.substr(start, at - start)), at, false});
    }
}

}  // namespace orvelle::linux
