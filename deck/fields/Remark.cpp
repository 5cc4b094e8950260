#include "deck/fields/Remark.h"

#include <QPainter>

#include "adapters/looks/Signs.h"

namespace orvelle::deck {

Remark::Remark(const QString& name) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setContentsMargins(fontMetrics().height() + Unit / 2, 0, 0, 0);
    hide();
}

void Remark::Show(const QString& sentence) {
    setText(sentence);
    setVisible(!sentence.isEmpty());
}

void Remark::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    const int side = fontMetrics().height();
    DrawSign(painter, QRectF(0, 0, side, side), Sign::Waiting, SignColour(Sign::Waiting, palette()));
}

}  // namespace orvelle::deck
