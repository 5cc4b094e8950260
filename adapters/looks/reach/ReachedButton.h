// A button, box or option as assistive programs see it. What they do to it is a click, by which a box changes and its
// program hears of it; Qt's own toggling would only change the box.
#pragma once

#include <QAbstractButton>

#include "adapters/looks/reach/ReachedWidget.h"

namespace orvelle {

class ReachedButton : public ReachedWidget {
public:
    ReachedButton(QAbstractButton& shown, QAccessible::Role role) : ReachedWidget(shown, role), button(shown) {}

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

private:
    QString OwnAction() const { return button.isCheckable() ? toggleAction() : pressAction(); }

    QAbstractButton& button;
};

}  // namespace orvelle
