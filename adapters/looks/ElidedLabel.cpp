#include "adapters/looks/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "adapters/looks/Text.h"

namespace orvelle {

namespace {

constexpr int LeastLetters = 8;

}  // namespace

QSize ElidedLabel::sizeHint() const { return {fontMetrics().horizontalAdvance(text()), fontMetrics().height()}; }

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * LeastLetters, fontMetrics().height()};
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainTip(text()), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()));
}

}  // namespace orvelle
