#include "adapters/looks/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

#include "adapters/looks/CalmStyle.h"
#include "platform/controls/Label.h"

namespace orvelle {

namespace {

constexpr Long RedText = 255;

struct Tones {
    QRgb Window;
    QRgb Base;
    QRgb Alternate;
    QRgb Button;
    QRgb Text;
    QRgb Disabled;
    QRgb Placeholder;
    QRgb Highlight;
    QRgb HighlightedText;
    QRgb Tip;
    QRgb TipText;
    QRgb Link;
    QRgb Line;
    QRgb Outline;
};

constexpr Tones LightTones{.Window = 0xfff1f3f5,
                           .Base = 0xffffffff,
                           .Alternate = 0xfff7f9fa,
                           .Button = 0xffe9edf0,
                           .Text = 0xff1b2630,
                           .Disabled = 0xff8a959f,
                           .Placeholder = 0xff5f6b76,
                           .Highlight = 0xff2b6a94,
                           .HighlightedText = 0xffffffff,
                           .Tip = 0xff26323c,
                           .TipText = 0xfff1f3f5,
                           .Link = 0xff1f5f8b,
                           .Line = 0xffbcc5cc,
                           .Outline = 0xff8d98a1};
constexpr Tones DarkTones{.Window = 0xff20262c,
                          .Base = 0xff181d22,
                          .Alternate = 0xff1d2329,
                          .Button = 0xff2e363e,
                          .Text = 0xffdfe5ea,
                          .Disabled = 0xff76828d,
                          .Placeholder = 0xff93a0ab,
                          .Highlight = 0xff2f6f99,
                          .HighlightedText = 0xffffffff,
                          .Tip = 0xff0f1316,
                          .TipText = 0xffdfe5ea,
                          .Link = 0xff7fb6db,
                          .Line = 0xff3d4750,
                          .Outline = 0xff66737f};

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

}  // namespace

Scheme SchemeOf(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness()
               ? Scheme::Dark
               : Scheme::Light;
}

Scheme SystemScheme() { return SchemeOf(QGuiApplication::palette()); }

QPalette CalmPalette(Scheme scheme) {
    const Tones& tones = scheme == Scheme::Dark ? DarkTones : LightTones;
    const QColor window = QColor::fromRgb(tones.Window);
    QPalette palette(QColor::fromRgb(tones.Button), window);
    const auto all = [&](QPalette::ColorRole role, QRgb tone) { palette.setColor(role, QColor::fromRgb(tone)); };
    all(QPalette::Base, tones.Base);
    all(QPalette::AlternateBase, tones.Alternate);
    all(QPalette::WindowText, tones.Text);
    all(QPalette::Text, tones.Text);
    all(QPalette::ButtonText, tones.Text);
    all(QPalette::BrightText, tones.HighlightedText);
    all(QPalette::PlaceholderText, tones.Placeholder);
    all(QPalette::Highlight, tones.Highlight);
    all(QPalette::HighlightedText, tones.HighlightedText);
    all(QPalette::ToolTipBase, tones.Tip);
    all(QPalette::ToolTipText, tones.TipText);
    all(QPalette::Link, tones.Link);
    all(QPalette::LinkVisited, tones.Link);
    all(QPalette::Mid, tones.Line);
    all(QPalette::Dark, tones.Line);
    all(QPalette::Shadow, tones.Outline);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(tones.Disabled));
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::AlternateBase, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor::fromRgb(tones.Disabled));
    return palette;
}

void ApplyTheme(Scheme scheme) {
    QApplication::setStyle(new CalmStyle);
    QApplication::setPalette(CalmPalette(scheme));
}

QColor SignColour(Sign sign, Scheme scheme) {
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

QColor TextColour(Long foreColor, const QPalette& palette) {
    if (foreColor == ButtonTextColour) return palette.color(QPalette::WindowText);
    if (foreColor == RedText) return SignColour(Sign::Bad, SchemeOf(palette));
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
