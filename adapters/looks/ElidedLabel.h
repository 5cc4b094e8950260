// A label of one line for texts of any length: where the room is too narrow the middle is left out, and the whole text
// is the tool tip.
#pragma once

#include <QLabel>

namespace orvelle {

class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvelle
