// A label, or a widget that says by drawing (adapters/looks/Reading.h), as assistive programs see it. One that has a
// name of its own, or a label, bears its words behind that name: a screen reader says the name of such things, and no
// more.
#pragma once

#include <QLabel>

#include "adapters/looks/Reading.h"
#include "adapters/looks/reach/ReachedWords.h"

namespace orvelle {

class ReachedReading : public ReachedWords {
public:
    ReachedReading(QWidget& shown, const Reading& words)
        : ReachedWords(shown, words.Role()), reading(&words), label(qobject_cast<const QLabel*>(&shown)) {}
    explicit ReachedReading(QLabel& shown) : ReachedWords(shown, QAccessible::StaticText), label(&shown) {}

    QString text(QAccessible::Text kind) const override;
    QList<std::pair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match) const override;
    // What it is made of says nothing else.
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    using ReachedWords::text;

protected:
    QString Words() const override;

private:
    const Reading* reading = nullptr;
    const QLabel* label;
};

}  // namespace orvelle
