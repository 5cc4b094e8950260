// Which line a server's name leads to: the program enters the media that it has, and the near end of a link asks when
// the panel chooses a server. Names are compared without regard to case. The lines outlive the table.
#pragma once

#include <algorithm>
#include <cctype>
#include <string>
#include <utility>
#include <vector>

namespace orvelle::ends {

template <typename Line>
class LineTable {
public:
    // `otherwise` takes all names that are not entered.
    explicit LineTable(Line& otherwise) : others(&otherwise) {}

    // From now on. An end that has chosen already goes over when its ChooseLine is called.
    void Enter(const std::string& server, Line& line) {
        std::erase_if(lines, [&](const auto& entry) { return IsSame(entry.first, server); });
        lines.emplace_back(server, &line);
    }
    void EnterOthers(Line& line) { others = &line; }

    Line& For(const std::string& server) const {
        const auto found = std::ranges::find_if(lines, [&](const auto& entry) { return IsSame(entry.first, server); });
        return found != lines.end() ? *found->second : *others;
    }

private:
    static bool IsSame(const std::string& one, const std::string& other) {
        return std::ranges::equal(one, other,
                                  [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
    }

    Line* others;
    std::vector<std::pair<std::string, Line*>> lines;
};

}  // namespace orvelle::ends
