#include "adapters/looks/SignLabel.h"

#include <QEvent>
#include <QPainter>

#include "adapters/looks/Theme.h"

namespace orvelle {

SignLabel::SignLabel(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
    MakeRoom();
}

void SignLabel::MakeRoom() { setContentsMargins(fontMetrics().height() + Unit, 0, 0, 0); }

void SignLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) MakeRoom();
    QLabel::changeEvent(event);
}

void SignLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    const QColor colour = SignColour(isEnabled() ? ShownSign() : Sign::Off, palette());
    const int side = fontMetrics().height();
    // Beside the first line, wherever the text stands in the label.
    const int textHeight = heightForWidth(width());
    const int top = (alignment() & Qt::AlignTop) != 0 || textHeight < 0 ? 0 : (height() - textHeight) / 2;
    DrawSign(painter, QRectF(0, top, side, side), ShownSign(), colour);
}

}  // namespace orvelle
