// The Fusion style with room to breathe and outlines that can be seen: rows of lists and trees, buttons and fields are
// a little higher, all of one height, and follow the font; boxes to tick, fields and frames are outlined in the colour
// of the Shadow role, as Fusion's own outline is lost on a dark window.
#pragma once

#include <QHash>
#include <QPalette>
#include <QProxyStyle>
#include <utility>

namespace orvelle {

class CalmStyle : public QProxyStyle {
public:
    CalmStyle();

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;

private:
    // The same one for the same palette and state: Fusion keeps what it has drawn by the palette's identity.
    const QPalette& Outlined(const QPalette& palette) const;

    mutable QHash<std::pair<qint64, QPalette::ColorGroup>, QPalette> outlined;
};

}  // namespace orvelle
