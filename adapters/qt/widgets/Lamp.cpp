#include "adapters/qt/widgets/Lamp.h"

#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>

#include "adapters/looks/Contrast.h"

namespace orvelle::qt {

namespace {

QFont KeyFont(QFont font) {
    font.setBold(true);
    return font;
}

}  // namespace

void Lamp::SetLetters(const QString& text) {
    letters = text;
    updateGeometry();
}

void Lamp::SetOutgoing(bool outgoing) {
    isOutgoing = outgoing;
    update();
}

void Lamp::SetLit(bool lit) {
    const QString before = Words();
    isLit = lit;
    TellWords(*this, before, Words());
    update();
}

void Lamp::SetFill(Long fillColor) {
    const QString before = Words();
    sign = SignOfFill(fillColor);
    TellWords(*this, before, Words());
    update();
}

QString Lamp::Words() const {
    if (!isLit) return tr("off");
    if (!letters.isEmpty()) return tr("on");
    return sign == Sign::Good ? tr("works") : tr("does not work");
}

bool Lamp::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !letters.isEmpty() || toolTip().isEmpty()) return QWidget::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTip() + QLatin1String(": ") + Words(), this);
    return true;
}

QSize Lamp::sizeHint() const {
    const QFontMetrics metrics(KeyFont(font()));
    const int side = metrics.height() + Unit / 2;
    if (letters.isEmpty()) return {side, side};
    return {metrics.horizontalAdvance(letters) + metrics.ascent() + 2 * Unit, side + Unit / 2};
}

void Lamp::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!letters.isEmpty()) {
        DrawKey(painter);
    } else if (isLit) {
        const qreal side = std::min(width(), height()) - Unit / 2.0;
        const QRectF area((width() - side) / 2, (height() - side) / 2, side, side);
        DrawSign(painter, area, sign, SignColour(isEnabled() ? sign : Sign::Off, palette()));
    }
}

void Lamp::DrawKey(QPainter& painter) const {
    const QColor outline = SignColour(isLit ? sign : Sign::Off, palette());
    const QColor text = isLit ? Readable(palette().color(QPalette::Base), {outline}, TextContrast)
                              : palette().color(QPalette::PlaceholderText);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(outline, 1));
    painter.setBrush(isLit ? QBrush(outline) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Unit / 2.0, Unit / 2.0);

    // A radio receives downwards and sends upwards.
    const qreal side = QFontMetrics(KeyFont(font())).ascent() * 0.62;
    const qreal top = (height() - side * 0.9) / 2;
    QPainterPath arrow(QPointF(Unit, isOutgoing ? top + side * 0.9 : top));
    arrow.lineTo(Unit + side, isOutgoing ? top + side * 0.9 : top);
    arrow.lineTo(Unit + side / 2, isOutgoing ? top : top + side * 0.9);
    arrow.closeSubpath();
    painter.setPen(QPen(text, 1));
    painter.setBrush(isLit ? QBrush(text) : QBrush(Qt::NoBrush));
    painter.drawPath(arrow);

    painter.setFont(KeyFont(font()));
    painter.drawText(rect().adjusted(Unit + qRound(side), 0, 0, 0), Qt::AlignCenter, letters);
}

}  // namespace orvelle::qt
