#include "simulators/flightgear/JsonLines.h"

#include <iterator>
#include <vector>

namespace orvelle::simulators {

namespace {

using Json = nlohmann::json;

constexpr std::size_t DeepestNamed = 16;  // deeper values are of no file of ours

// Counts the lines of what the parser has taken. It looks one character ahead at most, behind a number, so the end of a
// line counts once the next character is taken.
class CountingPlace {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingPlace(const char* start, std::size_t* counted) : place(start), line(counted) {}
    const char& operator*() const { return *place; }
    CountingPlace& operator++() {
        if (wasEnd) ++*line;
        wasEnd = *place++ == '\n';
        return *this;
    }
    bool operator==(const CountingPlace& other) const { return place == other.place; }
    bool operator!=(const CountingPlace& other) const { return place != other.place; }

private:
    const char* place;
    std::size_t* line;
    bool wasEnd = false;
};

// Where the parser is: the members and elements that it is inside of.
class Path {
public:
    bool IsDeep() const { return steps.size() > DeepestNamed; }
    void Name(const std::string& key) { steps.back().Key = key; }
    std::string Pointer() const {
        std::string pointer;
        for (const Step& step : steps) pointer += "/" + (step.IsList ? std::to_string(step.Index) : step.Key);
        return pointer;
    }
    void Begin(bool isList) { steps.push_back({isList, 0, ""}); }
    void End() {
        steps.pop_back();
        Next();
    }
    void Next() {
        if (!steps.empty()) ++steps.back().Index;
    }

private:
    struct Step {
        bool IsList;
        std::size_t Index;
        std::string Key;
    };

    std::vector<Step> steps;
};

}  // namespace

JsonLines::JsonLines(std::string_view text) {
    std::size_t line = 1;
    Path path;
    const auto follow = [&](int, Json::parse_event_t event, Json& parsed) {
        using Parsed = Json::parse_event_t;
        if (event == Parsed::key) {
            path.Name(parsed.get_ref<const std::string&>());
        } else if (event == Parsed::object_end || event == Parsed::array_end) {
            path.End();
        } else {
            if (!path.IsDeep()) lines[path.Pointer()] = line;
            if (event == Parsed::value)
                path.Next();
            else
                path.Begin(event == Parsed::array_start);
        }
        return true;
    };
    whole =
        Json::parse(CountingPlace(text.data(), &line), CountingPlace(text.data() + text.size(), &line), follow, false);
    if (whole.is_discarded()) lines = {{"", line}};
}

std::size_t JsonLines::LineOf(const std::string& pointer) const {
    std::string around = pointer;
    for (;;) {
        if (const auto found = lines.find(around); found != lines.end()) return found->second;
        if (around.empty()) return 1;
        around.resize(around.rfind('/'));
    }
}

}  // namespace orvelle::simulators
