#include "adapters/qt/widgets/Heading.h"

#include <QApplication>
#include <QPainter>

#include "adapters/looks/Theme.h"

namespace orvelle::qt {

Heading::Heading(QWidget* parent) : QLabel(parent) {
    FollowFont();
    setContentsMargins(0, 0, 0, Unit);
}

void Heading::FollowFont() {
    QFont large = QApplication::font(this);
    large.setPointSizeF(large.pointSizeF() * 1.3);
    large.setWeight(QFont::DemiBold);
    setFont(large);
}

void Heading::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.fillRect(0, height() - 1, width(), 1, palette().color(QPalette::Mid));
}

}  // namespace orvelle::qt
