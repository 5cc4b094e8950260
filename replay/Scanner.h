// Reads one scenario line from left to right. Blanks before whatever is read are skipped; a line that goes on
// otherwise than asked throws LineError.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "replay/Value.h"

namespace orvelle::replay {

// The line without its comment and the blanks around it. A comment starts with a # at the start of the line or after a
// blank outside quotes.
std::string WithoutComment(std::string_view line);

// What a line names: "optRWDriver(0)", "Velmarc.FSKeyDown(False, True, "A", "A")", "RadioVoice(0).Server".
struct Reference {
    struct Part {
        std::string Name;
        std::optional<Values> Arguments;

        std::string Printed() const;
    };

    std::vector<Part> Parts;  // at least one

    std::string Printed() const;
};

class Scanner {
public:
    explicit Scanner(std::string_view line) : rest(line) {}

    bool AtEnd();
    void ExpectEnd();
    // Takes the character if it comes next.
    bool Take(char next);
    void Expect(char next);

    // Up to the next blank.
    std::string Word();
    // A name of letters, digits and underlines.
    std::string Name();
    Reference AnyReference();
    // A reference without arguments behind it, such as that of a control.
    std::string PlainReference();

    Value AnyValue();
    std::string Text();
    Long WholeNumber();
    Long WholeNumber(Long least, Long most);
    double RealNumber();
    // Values between brackets, separated by commas; the opening bracket has been taken.
    Values BracketedValues();

private:
    void SkipBlanks();
    std::string Symbol();

    std::string_view rest;
};

}  // namespace orvelle::replay
