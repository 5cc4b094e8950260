#include "adapters/looks/CalmStyle.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

#include "adapters/looks/Theme.h"

namespace orvelle {

namespace {

// Fusion darkens the window's colour by this for its outlines.
constexpr int OutlineFactor = 140;
constexpr int HighlightFactor = 180;
constexpr int MostPalettes = 64;

template <typename Option>
Option WithPalette(const QStyleOption& option, const QPalette& palette) {
    Option changed(static_cast<const Option&>(option));
    changed.palette = palette;
    return changed;
}

}  // namespace

CalmStyle::CalmStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QSize CalmStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    QSize needed = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
        case CT_PushButton:
        case CT_LineEdit:
        case CT_ComboBox:
            needed.setHeight(std::max(needed.height(), option->fontMetrics.height() + Unit + Unit / 2));
            break;
        case CT_Slider:
            needed.rheight() += Unit / 2;
            break;
        case CT_ItemViewItem:
        case CT_HeaderSection:
            needed.rheight() += Unit;
            break;
        default:
            break;
    }
    return needed;
}

const QPalette& CalmStyle::Outlined(const QPalette& palette) const {
    if (outlined.size() > MostPalettes) outlined.clear();
    const auto key = std::pair(palette.cacheKey(), palette.currentColorGroup());
    auto found = outlined.find(key);
    if (found == outlined.end()) {
        found = outlined.insert(key, palette);
        found->setColor(QPalette::Window, palette.color(QPalette::Shadow).lighter(OutlineFactor));
        // Fusion darkens the highlight, too, for what has the focus.
        if (SchemeOf(palette) == Scheme::Dark)
            found->setColor(QPalette::Highlight, palette.color(QPalette::Highlight).lighter(HighlightFactor));
    }
    return *found;
}

// Fusion lays a slider with ticks so far up that its handle leaves the widget.
QRect CalmStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const {
    QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    if (control == CC_Slider && (part == SC_SliderHandle || part == SC_SliderGroove))
        rect.moveCenter({rect.center().x(), option->rect.center().y()});
    return rect;
}

void CalmStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    if (element == CE_PushButtonBevel) {
        const auto changed = WithPalette<QStyleOptionButton>(*option, Outlined(option->palette));
        QProxyStyle::drawControl(element, &changed, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    switch (element) {
        case PE_IndicatorCheckBox:
        case PE_IndicatorRadioButton: {
            const auto changed = WithPalette<QStyleOptionButton>(*option, Outlined(option->palette));
            QProxyStyle::drawPrimitive(element, &changed, painter, widget);
            break;
        }
        case PE_Frame:
        case PE_FrameLineEdit: {
            const auto changed = WithPalette<QStyleOptionFrame>(*option, Outlined(option->palette));
            QProxyStyle::drawPrimitive(element, &changed, painter, widget);
            break;
        }
        // A plain line, where Fusion lays a sheen over what has the focus.
        case PE_FrameFocusRect: {
            const QColor highlight = option->palette.color(QPalette::Highlight);
            const bool isDark = SchemeOf(option->palette) == Scheme::Dark;
            painter->save();
            painter->setPen(isDark ? highlight.lighter(OutlineFactor) : highlight.darker(OutlineFactor));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
            painter->restore();
            break;
        }
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            break;
    }
}

void CalmStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const {
    const auto draw = [&](const auto& changed) { QProxyStyle::drawComplexControl(control, &changed, painter, widget); };
    switch (control) {
        case CC_Slider:
            draw(WithPalette<QStyleOptionSlider>(*option, Outlined(option->palette)));
            break;
        case CC_SpinBox:
            draw(WithPalette<QStyleOptionSpinBox>(*option, Outlined(option->palette)));
            break;
        case CC_ComboBox:
            draw(WithPalette<QStyleOptionComboBox>(*option, Outlined(option->palette)));
            // As a line edit's: Fusion's own is lost beside it.
            if (option->state & State_HasFocus) {
                QStyleOptionFrame frame;
                frame.rect = option->rect;
                frame.state = option->state;
                frame.palette = option->palette;
                drawPrimitive(PE_FrameLineEdit, &frame, painter, widget);
            }
            break;
        default:
            draw(*option);
            break;
    }
}

}  // namespace orvelle
