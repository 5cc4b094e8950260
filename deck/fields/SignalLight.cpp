#include "deck/fields/SignalLight.h"

#include <QHBoxLayout>
#include <QPainter>
#include <algorithm>

#include "deck/fields/Readout.h"

namespace orvelle::deck {

namespace {

constexpr int Gap = 6;

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor ColourOf(Signal signal, const QPalette& palette) {
    const bool dark = IsDark(palette);
    switch (signal) {
        case Signal::On:
            return QColor::fromRgb(dark ? 0x4fc97f : 0x1d7f45);
        case Signal::Waiting:
            return QColor::fromRgb(dark ? 0xf2b84b : 0x9a6200);
        case Signal::Off:
            break;
    }
    return QColor::fromRgb(dark ? 0x84919c : 0x75818c);
}

int SideIn(const QWidget& widget) { return widget.fontMetrics().ascent(); }

}  // namespace

SignalLight::SignalLight(const QString& name) : words(new Readout(name + "Text")) {
    setObjectName(name);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(SideIn(*this) + Gap, 0, 0, 0);
    row->addWidget(words);
    setMinimumHeight(SideIn(*this) + 2);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void SignalLight::Show(Signal newSignal, const QString& text) {
    if (signal == newSignal && accessibleName() == text) return;
    words->Show(text);
    setAccessibleName(text);
    signal = newSignal;
    update();
}

void SignalLight::paintEvent(QPaintEvent*) {
    if (accessibleName().isEmpty()) return;
    const qreal side = SideIn(*this) - 1;
    const QRectF area(1, (height() - side) / 2, side, side);
    const QColor colour = ColourOf(signal, palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (signal == Signal::Off) {
        painter.setPen(QPen(colour, 1.5));
        painter.drawEllipse(area.adjusted(1, 1, -1, -1));
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    if (signal == Signal::On)
        painter.drawEllipse(area);
    else
        painter.drawPolygon(QPolygonF{{area.center().x(), area.top()}, area.bottomRight(), area.bottomLeft()});
}

}  // namespace orvelle::deck
