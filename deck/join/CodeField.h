// The field for a joining code: what is typed or pasted stands in groups of four capitals, wherever in it the user
// types, and a code that is complete but mistyped is shown as such.
#pragma once

#include <QLineEdit>
#include <functional>
#include <string>

namespace orvelle::deck {

class CodeField : public QLineEdit {
public:
    // `isCode` tells whether a complete text is a code; `changed` is called after each change by the user.
    CodeField(std::function<bool(const std::string&)> isCode, std::function<void()> changed);

    std::string Code() const;
    bool IsRight() const;
    // All of it is there, and it is no code.
    bool IsMistyped() const;

private:
    void Group();

    const std::function<bool(const std::string&)> takes;
    const QPalette usual;
};

}  // namespace orvelle::deck
