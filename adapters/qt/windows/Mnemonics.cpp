#include "adapters/qt/windows/Mnemonics.h"

#include <QAbstractButton>
#include <QHash>
#include <QLabel>
#include <QSet>

#include "adapters/looks/Text.h"
#include "adapters/qt/mirrors/Mnemonic.h"

namespace orvelle::qt {

namespace {

struct Captioned {
    QWidget* Widget;
    QString Caption;
    QList<QChar> Letters;  // those of the caption, the ones to be preferred first
};

// Every keyboard has these.
bool IsUsable(QChar letter) {
    return (letter >= QLatin1Char('a') && letter <= QLatin1Char('z')) ||
           (letter >= QLatin1Char('0') && letter <= QLatin1Char('9'));
}

// The first letters of words, then all others.
QList<QChar> LettersOf(const QString& caption) {
    QList<QChar> letters;
    for (const bool isFirstWanted : {true, false})
        for (qsizetype place = 0; place < caption.size(); ++place) {
            const QChar letter = caption[place].toLower();
            const bool isFirst = place == 0 || !caption[place - 1].isLetterOrNumber();
            if (isFirst == isFirstWanted && IsUsable(letter) && !letters.contains(letter)) letters.append(letter);
        }
    return letters;
}

QList<Captioned> CaptionedOf(const QWidget& page) {
    QList<Captioned> found;
    for (QWidget* widget : page.findChildren<QWidget*>()) {
        QString text;
        if (const auto* button = qobject_cast<QAbstractButton*>(widget)) text = button->text();
        if (const auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
            text = label->text();
        const QString caption = WithoutMnemonic(text);
        if (!caption.isEmpty()) found.append({widget, caption, LettersOf(caption)});
    }
    return found;
}

// Who has which letter. A control that finds all of its own taken asks their holders to change to another one.
class Holders {
public:
    explicit Holders(const QList<Captioned>& widgets) : all(widgets) {}

    bool Give(qsizetype index, QSet<QChar>& asked) {
        for (const QChar letter : all[index].Letters) {
            if (asked.contains(letter)) continue;
            asked.insert(letter);
            const auto holder = holders.constFind(letter);
            if (holder != holders.constEnd() && !Give(*holder, asked)) continue;
            holders.insert(letter, index);
            return true;
        }
        return false;
    }
    const QHash<QChar, qsizetype>& Letters() const { return holders; }

private:
    const QList<Captioned>& all;
    QHash<QChar, qsizetype> holders;
};

}  // namespace

void AssignMnemonics(QWidget& page) {
    const QList<Captioned> widgets = CaptionedOf(page);
    Holders holders(widgets);
    for (qsizetype index = 0; index < widgets.size(); ++index) {
        QSet<QChar> asked;
        holders.Give(index, asked);
    }
    for (auto letter = holders.Letters().begin(); letter != holders.Letters().end(); ++letter)
        SetMnemonic(*widgets[letter.value()].Widget, letter.key());
    for (const Captioned& captioned : widgets) {
        const QString shown = ShownCaption(captioned.Caption, *captioned.Widget);
        if (auto* button = qobject_cast<QAbstractButton*>(captioned.Widget)) button->setText(shown);
        if (auto* label = qobject_cast<QLabel*>(captioned.Widget)) label->setText(shown);
    }
}

}  // namespace orvelle::qt
