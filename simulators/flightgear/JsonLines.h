// JSON whose values know the lines on which they stand, for files that people write: their mistakes are named by line.
// Nothing throws.
#pragma once

#include <cstddef>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace orvelle::simulators {

class JsonLines {
public:
    explicit JsonLines(std::string_view text);

    // Discarded where the text is no JSON.
    const nlohmann::json& Whole() const { return whole; }
    // The line, from 1, of the value at this pointer ("/aircraft/0/names"), where an object or a list begins; of the
    // nearest one around it where it isn't there. Of a text that is no JSON, with "", the line on which it breaks.
    std::size_t LineOf(const std::string& pointer) const;

private:
    std::map<std::string, std::size_t> lines;
    nlohmann::json whole;
};

}  // namespace orvelle::simulators
