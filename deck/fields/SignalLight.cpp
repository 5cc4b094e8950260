#include "deck/fields/SignalLight.h"

#include <QHBoxLayout>
#include <QPainter>

#include "deck/fields/Readout.h"

namespace orvelle::deck {

namespace {

int SideIn(const QWidget& widget) { return widget.fontMetrics().height(); }

}  // namespace

SignalLight::SignalLight(const QString& name) : words(new Readout(name + "Text")) {
    setObjectName(name);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(SideIn(*this) + Unit / 2, 0, 0, 0);
    row->addWidget(words);
    setMinimumHeight(SideIn(*this));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void SignalLight::Show(Sign newSign, const QString& text) {
    if (sign == newSign && accessibleName() == text) return;
    words->Show(text);
    setAccessibleName(text);
    sign = newSign;
    update();
}

void SignalLight::paintEvent(QPaintEvent*) {
    if (accessibleName().isEmpty()) return;
    QPainter painter(this);
    const qreal side = SideIn(*this);
    const QColor colour = SignColour(isEnabled() ? sign : Sign::Off, SchemeOf(palette()));
    DrawSign(painter, QRectF(0, (height() - side) / 2, side, side), sign, colour);
}

}  // namespace orvelle::deck
