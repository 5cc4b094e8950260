#include "platform/qt/StandInIcon.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>
#include <QWindow>
#include <utility>

namespace orvelle {

namespace {

constexpr int Size = 48;
constexpr int IconMargin = 6;
constexpr int ScreenMargin = 16;
constexpr int ExplanationMilliseconds = 20000;

}  // namespace

StandInIcon::StandInIcon(std::function<void(Mouse)> onMouse)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), told(std::move(onMouse)) {
    setObjectName("StandInIcon");
    setWindowTitle("Orvelle Control Panel icon");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFixedSize(Size, Size);
}

void StandInIcon::SetIcon(const QIcon& newIcon) {
    icon = newIcon;
    setWindowIcon(icon);
    update();
}

void StandInIcon::Appear(const QString& tip, const QString& explanation) {
    setToolTip(tip + "\n" + explanation);
    setAccessibleName(tip);
    if (!wasShown) PlaceInCorner();
    show();
    raise();
    if (!wasShown) QToolTip::showText(geometry().topLeft(), toolTip(), this, rect(), ExplanationMilliseconds);
    wasShown = true;
}

void StandInIcon::PlaceInCorner() {
    const QRect free = screen()->availableGeometry();
    move(free.right() - ScreenMargin - Size, free.bottom() - ScreenMargin - Size);
}

void StandInIcon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    icon.paint(&painter, rect().adjusted(IconMargin, IconMargin, -IconMargin, -IconMargin));
}

void StandInIcon::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Space:
        case Qt::Key_Enter:
        case Qt::Key_Return:
            told(Mouse::LeftPress);
            break;
        case Qt::Key_Menu:
            told(Mouse::RightPress);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

void StandInIcon::mousePressEvent(QMouseEvent* event) {
    pressedAt = event->position().toPoint();
    isDragged = false;
    if (event->button() == Qt::RightButton) told(Mouse::RightPress);
}

void StandInIcon::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    const QPoint moved = event->position().toPoint() - pressedAt;
    if (!isDragged && moved.manhattanLength() < QApplication::startDragDistance()) return;
    const bool starts = !std::exchange(isDragged, true);
    // Without a window manager the window moves itself.
    if (!starts || !windowHandle()->startSystemMove()) move(pos() + moved);
}

void StandInIcon::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !isDragged) told(Mouse::LeftPress);
}

void StandInIcon::mouseDoubleClickEvent(QMouseEvent* event) {
    // The release that follows is no click.
    isDragged = true;
    if (event->button() == Qt::LeftButton) told(Mouse::DoubleClick);
}

void StandInIcon::closeEvent(QCloseEvent* event) { event->ignore(); }

}  // namespace orvelle
