#include "deck/fields/Readout.h"

#include <QPainter>
#include <QTextLayout>
#include <QtMath>
#include <algorithm>

namespace orvelle::deck {

namespace {

constexpr int LeastLetters = 8;

// Its height, logical pixels.
qreal LayOut(QTextLayout& layout, int width) {
    QTextOption option(Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

}  // namespace

Readout::Readout(const QString& name) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void Readout::Show(const QString& text) {
    if (this->text() == text) return;
    setText(text);
    updateGeometry();
}

QSize Readout::sizeHint() const { return {fontMetrics().horizontalAdvance(text()), fontMetrics().height()}; }

QSize Readout::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * LeastLetters, fontMetrics().height()};
}

int Readout::heightForWidth(int width) const {
    QTextLayout layout(text(), font());
    return std::max(qCeil(LayOut(layout, width)), fontMetrics().height());
}

void Readout::paintEvent(QPaintEvent*) {
    QTextLayout layout(text(), font());
    const qreal height = LayOut(layout, contentsRect().width());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    layout.draw(&painter, {0, std::max(0.0, (this->height() - height) / 2)});
}

}  // namespace orvelle::deck
