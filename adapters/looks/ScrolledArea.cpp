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

// The whole of it, where the area's own way is content with a field's cursor.
void ScrolledArea::BringIntoView(QWidget* focused) {
    if (focused == nullptr || QGuiApplication::mouseButtons() != Qt::NoButton) return;
    if (!widget()->isAncestorOf(focused)) return;
    const QSize most = (viewport()->size() - QSize(1, 1)) / 2;
    const QSize half = (focused->size() / 2 + QSize(2 * Unit, 2 * Unit)).boundedTo(most);
    const QPoint middle = focused->mapTo(widget(), focused->rect().center());
    ensureVisible(middle.x(), middle.y(), half.width(), half.height());
}

}  // namespace orvelle
