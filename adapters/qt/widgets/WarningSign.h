// The triangle alone, for a window that warns.
#pragma once

#include <QWidget>

namespace orvelle::qt {

class WarningSign : public QWidget {
    Q_OBJECT

public:
    explicit WarningSign(QWidget* parent = nullptr) : QWidget(parent) {}

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace orvelle::qt
