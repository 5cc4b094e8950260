#include "adapters/linux/CommandLine.h"

namespace orvelle::linux {

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
    }
}

}  // namespace orvelle::linux
