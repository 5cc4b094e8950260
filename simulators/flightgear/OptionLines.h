// The lines of a file of options, one a line, of which some are taken out or added and all others stay byte for byte,
// with the ends that they have. Blanks around an option don't count.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::simulators {

class OptionLines {
public:
    explicit OptionLines(std::string_view text);

    bool Has(const std::string& option) const;
    // Those that were taken out, in their order.
    std::vector<std::string> TakeOut(const std::function<bool(const std::string&)>& isMeant);
    // With an end as the lines before have it; a last line without one gets it.
    void Append(const std::string& option);
    std::string Text() const;

private:
    std::vector<std::string> lines;  // each with its end
};

}  // namespace orvelle::simulators
