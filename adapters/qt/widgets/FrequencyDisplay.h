// A frequency in large digits of one width, whatever the font; dashes while there is none.
#pragma once

#include <QLabel>

#include "adapters/looks/Reading.h"

namespace orvelle::qt {

class FrequencyDisplay : public QLabel, public Reading {
    Q_OBJECT

public:
    explicit FrequencyDisplay(QWidget* parent = nullptr) : QLabel(parent) {}

    QString Words() const override { return text().isEmpty() ? tr("none") : text(); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont LargeFont() const;
    int WidthOf(QChar character, const QFontMetrics& metrics) const;
    QString ShownText() const;
};

}  // namespace orvelle::qt
