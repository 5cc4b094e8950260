#include "deck/join/CodeField.h"

#include <algorithm>
#include <utility>

#include "adapters/looks/Signs.h"
#include "adapters/looks/Text.h"

namespace orvelle::deck {

namespace {

constexpr qsizetype GroupSize = 4;
constexpr qsizetype CodeSize = 24;
constexpr const char* Example = "0000-0000-0000-0000-0000-0000";
constexpr Long Red = 0x0000FF;  // 0x00BBGGRR

bool Counts(QChar each) { return each != '-' && !each.isSpace(); }

qsizetype CountIn(const QString& text) { return std::ranges::count_if(text, Counts); }

}  // namespace

CodeField::CodeField(std::function<bool(const std::string&)> isCode, std::function<void()> changed)
    : takes(std::move(isCode)), usual(palette()) {
    setObjectName("JoinCode");
    setPlaceholderText(Example);
    setToolTip(
        "The 24 characters that the simulator's computer gave for this one; capitals and hyphens don't matter. "
        "A set-up that is full gives none");
    constexpr int Frame = 24;  // what a field puts around its text, logical pixels
    setMinimumWidth(fontMetrics().horizontalAdvance(QString(CodeSize + 5, 'W')) / 10 * 9 + Frame);
    connect(this, &QLineEdit::textEdited, this, [this, changed = std::move(changed)] {
        Group();
        changed();
    });
}

std::string CodeField::Code() const { return FromQt(text()); }
bool CodeField::IsRight() const { return takes(Code()); }
bool CodeField::IsMistyped() const { return CountIn(text()) == CodeSize && !IsRight(); }

void CodeField::Group() {
    // The cursor stays behind the character that it stood behind.
    const qsizetype before = CountIn(text().left(cursorPosition()));
    QString grouped;
    qsizetype count = 0;
    qsizetype cursor = 0;
    for (const QChar each : text()) {
        if (!Counts(each) || count == CodeSize) continue;
        if (count > 0 && count % GroupSize == 0) grouped += '-';
        grouped += each.toUpper();
        if (++count == before) cursor = grouped.size();
    }
    if (before > count) cursor = grouped.size();
    if (grouped != text()) {
        setText(grouped);
        setCursorPosition(static_cast<int>(cursor));
    }
    QPalette shown = usual;
    if (IsMistyped()) shown.setColor(QPalette::Text, TextColour(Red, usual));
    setPalette(shown);
}

}  // namespace orvelle::deck
