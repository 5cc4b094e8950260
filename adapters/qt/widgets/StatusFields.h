// The two text fields of a status bar, side by side: the first as wide as its texts, the second with the rest.
#pragma once

#include <QFrame>

#include "adapters/looks/Reading.h"

class QLabel;

namespace orvelle::qt {

class StatusFields : public QFrame, public Reading {
    Q_OBJECT

public:
    static constexpr int Fields = 2;

    explicit StatusFields(QWidget* parent = nullptr);

    QString Text(int field) const;
    QString Words() const override;
    QAccessible::Role Role() const override { return QAccessible::StatusBar; }
    // `field` from 0.
    void SetField(int field, const QString& text, const QString& toolTip);

protected:
    void changeEvent(QEvent* event) override;

private:
    void FollowFont();

    QLabel* labels[Fields];
    QFrame* divider;
};

}  // namespace orvelle::qt
