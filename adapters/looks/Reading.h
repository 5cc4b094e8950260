// What a widget says by what it draws, in words, for who doesn't see the screen. Assistive programs get the words as
// the widget's text, and behind its accessible name, which tells what they are about: "COM1 receives: on". The widget
// itself tells of new words by TellWords.
#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace orvelle {

class Reading {
public:
    virtual ~Reading() = default;

    virtual QString Words() const = 0;
    virtual QAccessible::Role Role() const { return QAccessible::StaticText; }
};

// Costs nothing while no assistive program listens.
void TellWords(QWidget& widget, const QString& before, const QString& now);

}  // namespace orvelle
