// A frequency in large digits of one width, whatever the font; dashes while there is none.
#pragma once

#include <QLabel>

namespace orvelle::qt {

class FrequencyDisplay : public QLabel {
    Q_OBJECT

public:
    explicit FrequencyDisplay(QWidget* parent = nullptr) : QLabel(parent) {}

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
