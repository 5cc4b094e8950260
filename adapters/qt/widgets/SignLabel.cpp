#include "adapters/qt/widgets/SignLabel.h"

#include <QEvent>
#include <QPainter>

#include "platform/controls/Label.h"

namespace orvelle::qt {

SignLabel::SignLabel(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
    MakeRoom();
}

void SignLabel::MakeRoom() { setContentsMargins(fontMetrics().height() + Unit, 0, 0, 0); }

void SignLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) MakeRoom();
    QLabel::changeEvent(event);
}

void SignLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    const QColor colour = SignColour(isEnabled() ? ShownSign() : Sign::Off, palette());
    const int side = fontMetrics().height();
    // Beside the first line, wherever the text stands in the label.
    const int textHeight = heightForWidth(width());
    const int top = (alignment() & Qt::AlignTop) != 0 || textHeight < 0 ? 0 : (height() - textHeight) / 2;
    DrawSign(painter, QRectF(0, top, side, side), ShownSign(), colour);
}

void StatusLine::SetForeColor(Long color) {
    isBad = color != ButtonTextColour;
    update();
}

void StatusLine::SetKey(const QString& pictureKey) {
    key = pictureKey;
    update();
}

QSize WarningSign::sizeHint() const {
    const int side = 3 * fontMetrics().height();
    return {side, side};
}

void WarningSign::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawSign(painter, QRectF(rect()), Sign::Waiting, SignColour(Sign::Waiting, palette()));
}

Sign StatusLine::ShownSign() const {
    if (text().isEmpty()) return Sign::Off;
    if (isBad) return Sign::Bad;
    if (place >= key.size()) return Sign::Off;
    if (key[place] == QLatin1Char('Y')) return Sign::Waiting;
    return key[place] == QLatin1Char('V') ? Sign::Good : Sign::Off;
}

}  // namespace orvelle::qt
