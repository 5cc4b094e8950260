#include "adapters/looks/Signs.h"

#include <QPainter>
#include <QPainterPath>

#include "adapters/looks/Contrast.h"
#include "platform/controls/Label.h"

namespace orvelle {

namespace {

constexpr Long RedText = 255;

QPainterPath Disc(const QRectF& area) {
    QPainterPath path;
    path.addEllipse(area);
    return path;
}

QPainterPath Triangle(const QRectF& area) {
    QPainterPath path;
    path.moveTo(area.center().x(), area.top());
    path.lineTo(area.right(), area.bottom());
    path.lineTo(area.left(), area.bottom());
    path.closeSubpath();
    return path;
}

QPainterPath Stroked(const QPainterPath& line, qreal width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    return stroker.createStroke(line);
}

QPointF At(const QRectF& area, qreal x, qreal y) {
    return {area.left() + x * area.width(), area.top() + y * area.height()};
}

QPainterPath Check(const QRectF& area) {
    QPainterPath line(At(area, 0.26, 0.52));
    line.lineTo(At(area, 0.44, 0.70));
    line.lineTo(At(area, 0.75, 0.33));
    return Stroked(line, 0.13 * area.width());
}

QPainterPath Cross(const QRectF& area, qreal inset, qreal width) {
    QPainterPath line(At(area, inset, inset));
    line.lineTo(At(area, 1 - inset, 1 - inset));
    line.moveTo(At(area, 1 - inset, inset));
    line.lineTo(At(area, inset, 1 - inset));
    return Stroked(line, width * area.width());
}

QPainterPath Exclamation(const QRectF& area) {
    QPainterPath path;
    path.addRect(QRectF(At(area, 0.44, 0.38), At(area, 0.56, 0.68)));
    path.addRect(QRectF(At(area, 0.44, 0.76), At(area, 0.56, 0.88)));
    return path;
}

QPainterPath OutlineOf(const QRectF& area, Sign sign) {
    const qreal step = area.width() / 16;
    switch (sign) {
        case Sign::Good:
            return Disc(area).subtracted(Check(area));
        case Sign::Bad: {
            QPainterPath square;
            square.addRoundedRect(area.adjusted(step, step, -step, -step), 2 * step, 2 * step);
            return square.subtracted(Cross(area, 0.28, 0.13));
        }
        case Sign::Waiting:
            return Triangle(area.adjusted(0, step, 0, -step)).subtracted(Exclamation(area));
        case Sign::Off:
            break;
    }
    const QRectF outer = area.adjusted(step, step, -step, -step);
    return Disc(outer).subtracted(Disc(outer.adjusted(2 * step, 2 * step, -2 * step, -2 * step)));
}

QColor UsualColour(Sign sign, Scheme scheme) {
    const bool dark = scheme == Scheme::Dark;
    switch (sign) {
        case Sign::Good:
            return QColor::fromRgb(dark ? 0xff4fc97f : 0xff1d7f45);
        case Sign::Bad:
            return QColor::fromRgb(dark ? 0xffff8a80 : 0xffb3261e);
        case Sign::Waiting:
            return QColor::fromRgb(dark ? 0xfff2b84b : 0xff9a6200);
        case Sign::Off:
            break;
    }
    return QColor::fromRgb(dark ? 0xff84919c : 0xff75818c);
}

}  // namespace

QColor SignColour(Sign sign, const QPalette& palette) {
    const auto ground = [&palette](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
    return Readable(UsualColour(sign, SchemeOf(palette)),
                    {ground(QPalette::Window), ground(QPalette::Base), ground(QPalette::AlternateBase)}, TextContrast);
}

QColor TextColour(Long foreColor, const QPalette& palette) {
    if (foreColor == ButtonTextColour) return palette.color(QPalette::WindowText);
    if (foreColor == RedText) return SignColour(Sign::Bad, palette);
    return QColor(foreColor & 0xff, (foreColor >> 8) & 0xff, (foreColor >> 16) & 0xff);
}

Sign SignOfFill(Long fillColor) {
    const Long red = fillColor & 0xff;
    const Long green = (fillColor >> 8) & 0xff;
    return green >= red ? Sign::Good : Sign::Bad;
}

void DrawSign(QPainter& painter, const QRectF& area, Sign sign, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(OutlineOf(area, sign), colour);
    painter.restore();
}

}  // namespace orvelle
