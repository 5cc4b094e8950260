#include "apps/SimulatorIcon.h"

#include <QPainter>
#include <QPixmap>

namespace orvelle {

namespace {

constexpr int Sizes[] = {16, 22, 24, 32, 44, 48, 64, 128, 256};
// In parts of the side. The icon that is installed with the menu entry has the same measures.
constexpr qreal Middle = 0.5;
constexpr qreal Sideways = 0.3;
constexpr qreal Upwards = 0.26;
constexpr qreal OneSize = 0.42;
constexpr qreal OtherRadius = 0.1;
constexpr qreal WayWidth = 0.06;

QPixmap Drawn(Sign sign, int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size, size);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1a, 0x21, 0x28));
    painter.drawRoundedRect(QRectF(0, 0, 1, 1), 1.0 / 7, 1.0 / 7);
    const QPointF middle(Middle, Middle);
    const QColor others(0xb4, 0xc0, 0xca);
    for (const qreal sideways : {-Sideways, Sideways})
        for (const qreal upwards : {-Upwards, Upwards}) {
            const QPointF other = middle + QPointF(sideways, upwards);
            painter.setPen(QPen(others, WayWidth));
            painter.drawLine(middle, other);
            painter.setPen(Qt::NoPen);
            painter.setBrush(others);
            painter.drawEllipse(other, OtherRadius, OtherRadius);
        }
    // The ways end at the one's edge, also where its sign has holes.
    painter.setBrush(QColor(0x1a, 0x21, 0x28));
    painter.drawEllipse(middle, OneSize / 2, OneSize / 2);
    DrawSign(painter, QRectF(Middle - OneSize / 2, Middle - OneSize / 2, OneSize, OneSize), sign,
             SignColour(sign, CalmPalette(Scheme::Dark)));
    return picture;
}

}  // namespace

QIcon SimulatorIcon(Sign sign) {
    QIcon icon;
    for (const int size : Sizes) icon.addPixmap(Drawn(sign, size));
    return icon;
}

}  // namespace orvelle
