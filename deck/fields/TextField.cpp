#include "deck/fields/TextField.h"

#include <QAction>
#include <QKeyEvent>
#include <utility>

#include "adapters/looks/SignIcon.h"
#include "adapters/looks/Text.h"

namespace orvelle::deck {

namespace {

constexpr int LeastLetters = 12;

}  // namespace

TextField::TextField(std::function<void(const std::string&)> apply) : applyText(std::move(apply)) {
    setMinimumWidth(fontMetrics().averageCharWidth() * LeastLetters);
    connect(this, &QLineEdit::editingFinished, this, [this] {
        if (isModified()) Apply();
    });
    // Written at once and not typed: by an assistive program.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!isModified() && text() != holding) Apply();
    });
}

void TextField::Apply() {
    setModified(false);
    holding = text();
    applyText(FromQt(holding));
}

void TextField::Show(const std::string& text) {
    holding = ToQt(text);
    if (!isModified() && this->text() != holding) ShowHolding();
}

void TextField::ShowRefusal(const QString& why) {
    if (mark ? mark->text() == why : why.isEmpty()) return;
    delete mark;
    if (why.isEmpty()) return;
    mark = new QAction(SignIcon(Sign::Waiting), why, this);
    mark->setToolTip(PlainTip(why));
    addAction(mark, TrailingPosition);
}

void TextField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isModified())
        TakeBack();
    else
        QLineEdit::keyPressEvent(event);
}

void TextField::TakeBack() {
    if (isModified()) ShowHolding();
}

void TextField::ShowHolding() {
    setText(holding);
    setCursorPosition(0);
}

}  // namespace orvelle::deck
