#include "adapters/qt/widgets/StatusPicture.h"

#include <QPainter>
#include <algorithm>

#include "adapters/looks/Text.h"
#include "adapters/qt/widgets/StatusImage.h"

namespace orvelle::qt {

namespace {

// As high as the status lines beside it with their longest texts.
constexpr int Lines = 14;
constexpr int LeastLines = 8;

}  // namespace

void StatusPicture::SetKey(const QString& pictureKey) {
    const QString before = Words();
    key = pictureKey;
    TellWords(*this, before, Words());
    emit KeyChanged(key);
    update();
}

QString StatusPicture::Words() const { return StatusWords(FromQt(key)); }

QSize StatusPicture::sizeHint() const {
    const int side = Lines * fontMetrics().height();
    return {side, side};
}

QSize StatusPicture::minimumSizeHint() const {
    const int side = LeastLines * fontMetrics().height();
    return {side, side};
}

void StatusPicture::paintEvent(QPaintEvent*) {
    if (key.isEmpty()) return;
    QPainter painter(this);
    const int side = std::min(width(), height());
    DrawStatusImage(painter, QRectF((width() - side) / 2.0, 0, side, side), FromQt(key), 1 / devicePixelRatioF());
}

}  // namespace orvelle::qt
