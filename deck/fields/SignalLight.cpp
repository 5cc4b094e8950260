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
    const QString before = Words();
    if (sign == newSign && before == text) return;
    words->Show(text);
    TellWords(*this, before, text);
    sign = newSign;
    update();
}

QString SignalLight::Words() const { return words->text(); }

void SignalLight::paintEvent(QPaintEvent*) {
    if (Words().isEmpty()) return;
    QPainter painter(this);
    const qreal side = SideIn(*this);
    const QColor colour = SignColour(isEnabled() ? sign : Sign::Off, palette());
    DrawSign(painter, QRectF(0, (height() - side) / 2, side, side), sign, colour);
}

}  // namespace orvelle::deck
