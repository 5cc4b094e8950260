#include "adapters/qt/widgets/LevelMeter.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "adapters/looks/Signs.h"
#include "adapters/qt/services/SquelchMeasurement.h"

namespace orvelle::qt {

namespace {

constexpr double Fall = 4;     // at most, from level to level
constexpr int MarkHeight = 6;  // of the triangle under the bar, logical pixels
constexpr int LeastCharacters = 16;
constexpr int WantedCharacters = 44;

}  // namespace

LevelMeter::LevelMeter(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

void LevelMeter::SetLevel(double value) {
    const double shown = std::max(AsLevel(value), level - Fall);
    if (shown == level) return;
    level = shown;
    update();
}

void LevelMeter::SetMark(double value) {
    mark = AsLevel(value);
    update();
}

QString LevelMeter::Words() const { return tr(Passes() ? "%1, passes" : "%1, is cut off").arg(qRound(level)); }

int LevelMeter::BarHeight() const { return fontMetrics().height(); }

QSize LevelMeter::sizeHint() const {
    return {WantedCharacters * fontMetrics().averageCharWidth(), BarHeight() + MarkHeight};
}

QSize LevelMeter::minimumSizeHint() const {
    return {LeastCharacters * fontMetrics().averageCharWidth(), sizeHint().height()};
}

void LevelMeter::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The triangle of a mark at either end has its room.
    const QRectF bar = QRectF(MarkHeight, 0, width() - 2 * MarkHeight, BarHeight()).adjusted(0.5, 0.5, -0.5, -0.5);
    const auto placeOf = [&](double value) { return bar.left() + bar.width() * value / 100; };
    QPainterPath groove;
    groove.addRoundedRect(bar, Unit / 2.0, Unit / 2.0);
    painter.fillPath(groove, palette().color(QPalette::Base));

    QRectF filled(bar.left(), bar.top(), placeOf(level) - bar.left(), bar.height());
    const qreal beside = bar.height() / 3;
    if (!Passes()) filled.adjust(0, beside, 0, -beside);
    painter.save();
    painter.setClipPath(groove);
    painter.fillRect(filled, SignColour(isEnabled() && Passes() ? Sign::Good : Sign::Off, palette()));
    painter.restore();
    painter.setPen(QPen(palette().color(QPalette::Shadow), 1));
    painter.drawPath(groove);

    // On whole pixels of the screen, so that it is sharp.
    const qreal ratio = devicePixelRatioF();
    const qreal line = qRound(2 * ratio) / ratio;
    const qreal left = qRound((placeOf(mark) - line / 2) * ratio) / ratio;
    const QColor ink = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    painter.fillRect(QRectF(left, 0, line, BarHeight()), ink);
    QPainterPath triangle(QPointF(left + line / 2, BarHeight()));
    triangle.lineTo(left + line / 2 + MarkHeight, BarHeight() + MarkHeight);
    triangle.lineTo(left + line / 2 - MarkHeight, BarHeight() + MarkHeight);
    triangle.closeSubpath();
    painter.fillPath(triangle, ink);
}

}  // namespace orvelle::qt
