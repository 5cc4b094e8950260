// The status picture at large: draws the picture of a key at whatever size it has. The status lines listen to its key.
#pragma once

#include <QWidget>

#include "adapters/looks/Reading.h"

namespace orvelle::qt {

class StatusPicture : public QWidget, public Reading {
    Q_OBJECT

public:
    explicit StatusPicture(QWidget* parent = nullptr) : QWidget(parent) {}

    QString Key() const { return key; }
    // An empty key shows nothing.
    void SetKey(const QString& pictureKey);
    // The state of each lamp.
    QString Words() const override;
    QAccessible::Role Role() const override { return QAccessible::Graphic; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void KeyChanged(const QString& pictureKey);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString key;
};

}  // namespace orvelle::qt
