#include "adapters/qt/widgets/WarningSign.h"

#include <QPainter>

#include "adapters/looks/Signs.h"

namespace orvelle::qt {

QSize WarningSign::sizeHint() const {
    const int side = 3 * fontMetrics().height();
    return {side, side};
}

void WarningSign::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawSign(painter, QRectF(rect()), Sign::Waiting, SignColour(Sign::Waiting, palette()));
}

}  // namespace orvelle::qt
