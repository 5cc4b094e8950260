#include "adapters/qt/widgets/Card.h"

#include <QPainter>

#include "adapters/looks/Theme.h"

namespace orvelle::qt {

void Card::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Unit / 2.0, Unit / 2.0);
}

}  // namespace orvelle::qt
