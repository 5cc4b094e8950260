#include "replay/Scanner.h"

#include <charconv>
#include <limits>

namespace orvelle::replay {

namespace {

bool IsBlank(char letter) { return letter == ' ' || letter == '\t' || letter == '\r'; }
bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }
bool IsLetter(char letter) { return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z'); }
bool IsNamePart(char letter) { return IsLetter(letter) || IsDigit(letter) || letter == '_'; }

// "{10}" at the start of `text` is the character of code 10; a brace otherwise stands for itself.
std::optional<char> CharacterOfCode(std::string_view text, std::size_t& length) {
    std::size_t end = 1;
    while (end < text.size() && IsDigit(text[end])) ++end;
    if (end == 1 || end == text.size() || text[end] != '}') return std::nullopt;
    unsigned code = 0;
    const auto read = std::from_chars(text.data() + 1, text.data() + end, code);
    if (read.ec != std::errc() || code > 255)
        throw LineError(std::string(text.substr(0, end + 1)) + " is no character");
    length = end + 1;
    return static_cast<char>(code);
}

Long ParsedWholeNumber(const std::string& symbol) {
    const bool isHexadecimal = symbol.starts_with("0x");
    const char* const start = symbol.data() + (isHexadecimal ? 2 : 0);
    const char* const end = symbol.data() + symbol.size();
    std::int64_t number = 0;
    const auto read = std::from_chars(start, end, number, isHexadecimal ? 16 : 10);
    const bool isNumber = start != end && read.ptr == end && !(isHexadecimal && *start == '-');
    if (!isNumber) throw LineError(symbol + " is no whole number");
    const std::int64_t most =
        isHexadecimal ? std::numeric_limits<std::uint32_t>::max() : std::numeric_limits<Long>::max();
    if (read.ec != std::errc() || number < std::numeric_limits<Long>::min() || number > most)
        throw LineError(symbol + " is out of the range of a 32-bit number");
    return static_cast<Long>(number);
}

double ParsedRealNumber(const std::string& symbol) {
    double number = 0;
    const char* const end = symbol.data() + symbol.size();
    const auto read = std::from_chars(symbol.data(), end, number, std::chars_format::fixed);
    const bool endsWithDigits =
        !symbol.empty() && IsDigit(symbol.front() == '-' ? symbol[1] : symbol[0]) && IsDigit(symbol.back());
    if (read.ec != std::errc() || read.ptr != end || !endsWithDigits) throw LineError(symbol + " is no number");
    return number;
}

}  // namespace

std::string WithoutComment(std::string_view line) {
    bool inText = false;
    for (std::size_t place = 0; place < line.size(); ++place) {
        if (line[place] == '"') inText = !inText;
        if (line[place] == '#' && !inText && (place == 0 || IsBlank(line[place - 1]))) {
            line = line.substr(0, place);
            break;
        }
    }
    while (!line.empty() && IsBlank(line.back())) line.remove_suffix(1);
    while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
    return std::string(line);
}

std::string Reference::Part::Printed() const {
    return Arguments ? Name + "(" + replay::Printed(*Arguments) + ")" : Name;
}

std::string Reference::Printed() const {
    std::string printed;
    for (const Part& part : Parts) {
        if (!printed.empty()) printed += ".";
        printed += part.Printed();
    }
    return printed;
}

bool Scanner::AtEnd() {
    SkipBlanks();
    return rest.empty();
}

void Scanner::ExpectEnd() {
    if (!AtEnd()) throw LineError("nothing is expected where \"" + std::string(rest) + "\" stands");
}

bool Scanner::Take(char next) {
    SkipBlanks();
    if (!rest.starts_with(next)) return false;
    rest.remove_prefix(1);
    return true;
}

void Scanner::Expect(char next) {
    if (Take(next)) return;
    throw LineError(std::string("a \"") + next + "\" is missing " +
                    (rest.empty() ? "at the end" : "before \"" + std::string(rest) + "\""));
}

std::string Scanner::Word() {
    SkipBlanks();
    std::size_t end = 0;
    while (end < rest.size() && !IsBlank(rest[end])) ++end;
    if (end == 0) throw LineError("a word is missing at the end");
    std::string word(rest.substr(0, end));
    rest.remove_prefix(end);
    return word;
}

std::string Scanner::Name() {
    SkipBlanks();
    std::size_t end = 0;
    while (end < rest.size() && IsNamePart(rest[end])) ++end;
    if (end == 0 || IsDigit(rest.front()))
        throw LineError("a name is missing " + (rest.empty() ? "at the end" : "before \"" + std::string(rest) + "\""));
    std::string name(rest.substr(0, end));
    rest.remove_prefix(end);
    return name;
}

Reference Scanner::AnyReference() {
    Reference reference;
    do {
        reference.Parts.push_back({Name(), std::nullopt});
        if (rest.starts_with('(')) {
            rest.remove_prefix(1);
            reference.Parts.back().Arguments = BracketedValues();
        }
        if (!rest.starts_with('.')) break;
        rest.remove_prefix(1);
    } while (true);
    return reference;
}

std::string Scanner::PlainReference() { return AnyReference().Printed(); }

Value Scanner::AnyValue() {
    SkipBlanks();
    if (rest.starts_with('"')) return Text();
    const std::string symbol = Symbol();
    if (symbol == "True") return true;
    if (symbol == "False") return false;
    if (!IsDigit(symbol.front()) && symbol.front() != '-') throw LineError(symbol + " is no value");
    if (symbol.find('.') != std::string::npos) return ParsedRealNumber(symbol);
    return ParsedWholeNumber(symbol);
}

std::string Scanner::Text() {
    SkipBlanks();
    if (!rest.starts_with('"'))
        throw LineError("a text in quotes is missing " +
                        (rest.empty() ? "at the end" : "before \"" + std::string(rest) + "\""));
    rest.remove_prefix(1);
    std::string text;
    while (true) {
        if (rest.empty()) throw LineError("the text has no closing quote");
        if (rest.starts_with('"')) {
            rest.remove_prefix(1);
            if (!rest.starts_with('"')) return text;
        }
        std::size_t length = 1;
        char letter = rest.front();
        if (letter == '{') letter = CharacterOfCode(rest, length).value_or(letter);
        text += letter;
        rest.remove_prefix(length);
    }
}

Long Scanner::WholeNumber() {
    SkipBlanks();
    return ParsedWholeNumber(Symbol());
}

Long Scanner::WholeNumber(Long least, Long most) {
    const Long number = WholeNumber();
    if (number < least || number > most)
        throw LineError(std::to_string(number) + " is not between " + std::to_string(least) + " and " +
                        std::to_string(most));
    return number;
}

double Scanner::RealNumber() {
    SkipBlanks();
    return ParsedRealNumber(Symbol());
}

Values Scanner::BracketedValues() {
    Values values;
    if (Take(')')) return values;
    do values.push_back(AnyValue());
    while (Take(','));
    Expect(')');
    return values;
}

void Scanner::SkipBlanks() {
    while (!rest.empty() && IsBlank(rest.front())) rest.remove_prefix(1);
}

std::string Scanner::Symbol() {
    std::size_t end = 0;
    while (end < rest.size() && !IsBlank(rest[end]) && rest[end] != ',' && rest[end] != '(' && rest[end] != ')') ++end;
    if (end == 0)
        throw LineError("a value is missing " + (rest.empty() ? "at the end" : "before \"" + std::string(rest) + "\""));
    std::string symbol(rest.substr(0, end));
    rest.remove_prefix(end);
    return symbol;
}

}  // namespace orvelle::replay
