#include "adapters/qt/windows/PageArea.h"

#include <QEvent>
#include <QStyle>

#include "adapters/qt/widgets/Heading.h"

namespace orvelle::qt {

namespace {

// Room is kept for the bar whether it is there or not: what comes and goes with the height would change the height.
int BarWidth(const QWidget& widget) {
    return widget.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget);
}

}  // namespace

PageArea::PageArea(QWidget* formPage, QWidget* parent)
    : ScrolledArea(formPage, parent), page(*formPage), grid(*formPage) {
    FollowFont();
    Fit();
}

QSize PageArea::UsualSize(const QWidget& window) { return PageGrid::UsualSize(window) + QSize(BarWidth(window), 0); }

void PageArea::FollowFont() { page.setMaximumWidth(PageGrid::MostWidth(page)); }

void PageArea::Fit() { grid.Fit(width() - BarWidth(*this)); }

void PageArea::resizeEvent(QResizeEvent* event) {
    Fit();
    ScrolledArea::resizeEvent(event);
}

void PageArea::changeEvent(QEvent* event) {
    ScrolledArea::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
    for (Heading* heading : page.findChildren<Heading*>()) heading->FollowFont();
    FollowFont();
    Fit();
}

}  // namespace orvelle::qt
