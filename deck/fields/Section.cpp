#include "deck/fields/Section.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "deck/fields/FieldNames.h"

namespace orvelle::deck {

namespace {

constexpr const char* LongestLabel = "Other computer";

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

// A title with a fine line behind it.
QWidget* Title(const QString& title) {
    auto* line = new QFrame;
    line->setFrameStyle(QFrame::HLine | QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    auto* label = new QLabel(title);
    label->setFont(Bold(label->font()));
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Unit);
    row->addWidget(label);
    row->addWidget(line, 1);
    return widget;
}

}  // namespace

Section::Section(const QString& name, const QString& title, int columnCount)
    : grid(new QGridLayout(this)), columns(columnCount) {
    setObjectName(name);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Unit);
    grid->setVerticalSpacing(Unit / 2);
    FollowFont();
    for (int column = 1; column <= columns; ++column) grid->setColumnStretch(column, 1);
    grid->addWidget(Title(title), 0, 0, 1, columns + 1);
}

void Section::FollowFont() { grid->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(LongestLabel)); }

void Section::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) FollowFont();
    QWidget::changeEvent(event);
}

void Section::AddRow(const QString& label, std::initializer_list<QWidget*> fields) {
    if (!label.isEmpty()) {
        auto* caption = new QLabel(label);
        caption->setBuddy(*fields.begin());
        grid->addWidget(caption, nextRow, 0);
    }
    NameFields(label, captions, fields);
    int column = 1;
    for (const auto* field = fields.begin(); field != fields.end();) {
        const auto* next = std::find_if(field + 1, fields.end(), [](const QWidget* other) { return other != nullptr; });
        const int span = next == fields.end() ? columns + 1 - column : static_cast<int>(next - field);
        grid->addWidget(*field, nextRow, column, 1, span);
        column += span;
        field = next;
    }
    ++nextRow;
}

void Section::AddWide(QWidget* widget, int stretch) {
    grid->addWidget(widget, nextRow, 0, 1, columns + 1);
    grid->setRowStretch(nextRow++, stretch);
}

void Section::AddCaptions(const QStringList& texts) {
    captions = texts;
    int column = 1;
    for (const QString& caption : captions) grid->addWidget(new QLabel(caption), nextRow, column++);
    ++nextRow;
}

QWidget* Labelled(const QString& label, QWidget* field) {
    auto* widget = new QWidget;
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Unit);
    auto* caption = new QLabel(label);
    caption->setBuddy(field);
    row->addWidget(caption);
    row->addWidget(field, 1);
    return widget;
}

}  // namespace orvelle::deck
