#include "replay/Value.h"

#include <array>
#include <charconv>

namespace orvelle::replay {

namespace {

// The largest double has 309 digits before the point, the smallest some 1074 behind it.
template <typename Number>
std::string Shortest(Number number) {
    std::array<char, 1100> digits;
    // Adding zero takes the sign off a negative zero.
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number + Number{0}, std::chars_format::fixed).ptr;
    return {digits.data(), end};
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        if (code < 32 || code == 127)
            quoted.append("{").append(std::to_string(code)).append("}");
        else if (letter == '"')
            quoted += "\"\"";
        else
            quoted += letter;
    }
    return quoted + "\"";
}

struct Printer {
    std::string operator()(const std::string& text) const { return Quoted(text); }
    std::string operator()(Long number) const { return std::to_string(number); }
    std::string operator()(bool flag) const { return flag ? "True" : "False"; }
    std::string operator()(double number) const { return Shortest(number); }
    std::string operator()(const Value::BareWord& word) const { return word.Letters; }
};

}  // namespace

Value::Value(float number) {
    const std::string digits = Shortest(number);
    double widened = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), widened);
    held = widened;
}

Value Value::Root(Long root) {
    std::array<char, 8> digits;
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::uint32_t>(root), 16).ptr;
    return Word("0x" + std::string(digits.data(), end));
}

std::string Value::Printed() const { return std::visit(Printer{}, held); }

std::string Printed(const Values& values) {
    std::string line;
    for (const Value& value : values) line += (line.empty() ? "" : ", ") + value.Printed();
    return line;
}

}  // namespace orvelle::replay
