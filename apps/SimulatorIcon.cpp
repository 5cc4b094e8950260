#include "apps/SimulatorIcon.h"

#include <QPainter>
#include <QPixmap>

#include "adapters/looks/Theme.h"
#include "adapters/qt/widgets/StatusImage.h"

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
    qt::DrawIconFace(painter, picture.rect(), 1);
    const QPointF middle(Middle * size, Middle * size);
    const QColor others(0xb4, 0xc0, 0xca);
    for (const qreal sideways : {-Sideways, Sideways})
        for (const qreal upwards : {-Upwards, Upwards}) {
            const QPointF other = middle + QPointF(sideways, upwards) * size;
            painter.setPen(QPen(others, WayWidth * size));
            painter.drawLine(middle, other);
            painter.setPen(Qt::NoPen);
            painter.setBrush(others);
            painter.drawEllipse(other, OtherRadius * size, OtherRadius * size);
        }
    // The ways end at the one's edge, also where its sign has holes.
    const QPointF reach(OneSize * size / 2, OneSize * size / 2);
    painter.setBrush(qt::IconFace);
    painter.drawEllipse(middle, reach.x(), reach.y());
    DrawSign(painter, QRectF(middle - reach, middle + reach), sign, SignColour(sign, CalmPalette(Scheme::Dark)));
    return picture;
}

}  // namespace

QIcon SimulatorIcon(Sign sign) {
    QIcon icon;
    for (const int size : Sizes) icon.addPixmap(Drawn(sign, size));
    return icon;
}

}  // namespace orvelle
