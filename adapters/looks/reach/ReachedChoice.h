// A combo box as assistive programs see it: named by its label or accessible name, with what is chosen as its text, and
// its list and field below it. An entry that they select in the list is picked, as by a click on it. Qt's own names the
// box by what is chosen, and hears of no entry selected in the closed list.
#pragma once

#include <QComboBox>

#include "adapters/looks/reach/ReachedWords.h"

namespace orvelle {

class ReachedChoice : public ReachedWords {
public:
    explicit ReachedChoice(QComboBox& shown) : ReachedWords(shown, QAccessible::ComboBox), box(shown) {}

    QString text(QAccessible::Text kind) const override;
    using ReachedWords::text;
    QAccessible::State state() const override;
    int childCount() const override { return box.isEditable() ? 2 : 1; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

protected:
    QString Words() const override { return box.currentText(); }

private:
    void HearList() const;

    QComboBox& box;
    mutable QMetaObject::Connection selections;  // in the list, heard from when it is first looked at
};

}  // namespace orvelle
