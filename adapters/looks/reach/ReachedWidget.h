// A widget as assistive programs see it: by Qt's own rules, but that its description is plain text.
#pragma once

#include <QAccessibleWidget>

namespace orvelle {

class ReachedWidget : public QAccessibleWidget {
public:
    ReachedWidget(QWidget& shown, QAccessible::Role role) : QAccessibleWidget(&shown, role) {}

    QString text(QAccessible::Text kind) const override;
};

}  // namespace orvelle
