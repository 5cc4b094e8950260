#include "deck/fields/Readout.h"

#include <QPainter>

#include "deck/fields/Fields.h"

namespace orvelle::deck {

namespace {

constexpr int LeastLetters = 6;

}  // namespace

Readout::Readout(const QString& name) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void Readout::Show(const QString& text) {
    if (text == this->text()) return;
    setText(text);
    setToolTip(PlainTip(text));
}

QSize Readout::sizeHint() const { return {fontMetrics().horizontalAdvance(text()), fontMetrics().height()}; }

QSize Readout::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * LeastLetters, fontMetrics().height()};
}

void Readout::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
}

}  // namespace orvelle::deck
