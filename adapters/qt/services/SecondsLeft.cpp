#include "adapters/qt/services/SecondsLeft.h"

#include <QPainter>
#include <QPixmap>
#include <chrono>

namespace orvelle::qt {

namespace {

QIcon NumberIcon(const QWidget& widget, int number) {
    const int side = widget.fontMetrics().height();
    QPixmap pixmap(QSize(side, side) * widget.devicePixelRatioF());
    pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QFont font = widget.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(widget.palette().color(QPalette::WindowText));
    painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, QString::number(number));
    return QIcon(pixmap);
}

}  // namespace

SecondsLeft::SecondsLeft(QLineEdit& field, int seconds) : action(new QAction(&field)), left(seconds) {
    Show();
    field.addAction(action, QLineEdit::TrailingPosition);
    next.callOnTimeout([this] {
        if (left > 1) --left;
        Show();
    });
    next.start(std::chrono::seconds(1));
}

void SecondsLeft::Show() {
    auto* field = action ? qobject_cast<QLineEdit*>(action->parent()) : nullptr;
    if (field == nullptr) return;
    action->setIcon(NumberIcon(*field, left));
    action->setText(QObject::tr("seconds left: %1").arg(left));
}

}  // namespace orvelle::qt
