#include "adapters/looks/ScrolledArea.h"

#include <QApplication>

#include "adapters/looks/Theme.h"

namespace orvelle {

ScrolledArea::ScrolledArea(QWidget* page, QWidget* parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(page);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focused) { BringIntoView(focused); });
}

void ScrolledArea::BringIntoView(QWidget* focused) {
    if (focused == nullptr || QGuiApplication::mouseButtons() != Qt::NoButton) return;
    if (widget()->isAncestorOf(focused)) ensureWidgetVisible(focused, 2 * Unit, 2 * Unit);
}

}  // namespace orvelle
