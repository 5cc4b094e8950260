#include "adapters/qt/widgets/FrequencyDisplay.h"

#include <QPainter>
#include <algorithm>

namespace orvelle::qt {

namespace {

constexpr double Magnification = 2.2;
const QString NoFrequency = QStringLiteral("\u2013\u2013\u2013.\u2013\u2013\u2013");

}  // namespace

QFont FrequencyDisplay::LargeFont() const {
    QFont large = font();
    if (large.pointSizeF() > 0)
        large.setPointSizeF(large.pointSizeF() * Magnification);
    else
        large.setPixelSize(qRound(large.pixelSize() * Magnification));
    return large;
}

int FrequencyDisplay::WidthOf(QChar character, const QFontMetrics& metrics) const {
    if (!character.isDigit() && character != NoFrequency.front()) return metrics.horizontalAdvance(character);
    int widest = 0;
    for (const char digit : {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9'})
        widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

QString FrequencyDisplay::ShownText() const { return text().isEmpty() ? NoFrequency : text(); }

QSize FrequencyDisplay::sizeHint() const {
    const QFontMetrics metrics(LargeFont());
    const auto widthOf = [&](const QString& shown) {
        int width = 0;
        for (const QChar character : shown) width += WidthOf(character, metrics);
        return width;
    };
    return {std::max(widthOf(NoFrequency), widthOf(text())), metrics.height()};
}

void FrequencyDisplay::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(LargeFont());
    painter.setPen(palette().color(text().isEmpty() ? QPalette::PlaceholderText : foregroundRole()));
    const QFontMetrics metrics(LargeFont());
    int left = 0;
    for (const QChar character : ShownText()) {
        const int width = WidthOf(character, metrics);
        painter.drawText(QRect(left, 0, width, height()), Qt::AlignCenter | Qt::TextDontClip, character);
        left += width;
    }
}

}  // namespace orvelle::qt
