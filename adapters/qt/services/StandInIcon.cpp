#include "adapters/qt/services/StandInIcon.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace orvelle::qt {

namespace {

constexpr int Size = 48;
constexpr int IconMargin = 6;
constexpr int ScreenMargin = 16;
constexpr int ExplanationCharacters = 56;  // of a line

}  // namespace

StandInIcon::StandInIcon(std::function<void(Mouse)> onMouse)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), told(std::move(onMouse)) {
    setObjectName("StandInIcon");
    setWindowTitle("Orvelle Control Panel icon");
    setAttribute(Qt::WA_ShowWithoutActivating);
    explanation = new QLabel(this);
    explanation->setWordWrap(true);
    explanation->setAttribute(Qt::WA_TransparentForMouseEvents);
    const int explanationWidth = fontMetrics().averageCharWidth() * ExplanationCharacters;
    explanation->setGeometry(IconMargin, 0, explanationWidth, Size);
    setFixedSize(IconMargin + explanationWidth + Size, Size);
}

void StandInIcon::SetIcon(const QIcon& newIcon) {
    icon = newIcon;
    setWindowIcon(icon);
    update();
}

void StandInIcon::Appear(const QString& tip, const QString& words) {
    setToolTip(tip + "\n" + words);
    setAccessibleName(tip);
    explanation->setText(words);
    if (!isPlaced) PlaceInCorner();
    isPlaced = true;
    show();
    raise();
}

void StandInIcon::Say(const QString& words) {
    explanation->setText(words);
    explanation->setFixedHeight(std::max(Size, explanation->heightForWidth(explanation->width())));
    explanation->show();
    isExplained = false;
    Resize({explanation->x() + explanation->width() + Size, explanation->height()});
    raise();
}

// The icon, in the lower right corner, stays where it is.
void StandInIcon::Resize(QSize newSize) {
    const QPoint place = pos() + QPoint(width() - newSize.width(), height() - newSize.height());
    setFixedSize(newSize);
    move(place);
}

// The lower right one; the left one where a window of the program lies under the first alone.
void StandInIcon::PlaceInCorner() {
    const QRect free = screen()->availableGeometry().marginsRemoved(QMargins() + ScreenMargin);
    const QPoint last(free.right() + 1 - width(), free.bottom() + 1 - height());
    const QPoint other(free.left(), last.y());
    const bool goesToTheOther = CoversWindow(QRect(last, size())) && !CoversWindow(QRect(other, size()));
    move(goesToTheOther ? other : last);
}

bool StandInIcon::CoversWindow(const QRect& place) const {
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (window != this && window->isVisible() && window->frameGeometry().intersects(place)) return true;
    return false;
}

void StandInIcon::Use(Mouse mouse) {
    if (!std::exchange(isExplained, true)) {
        explanation->hide();
        Resize({Size, Size});
    }
    told(mouse);
}

void StandInIcon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    icon.paint(&painter, QRect(width() - Size, height() - Size, Size, Size).marginsRemoved(QMargins() + IconMargin));
}

void StandInIcon::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Space:
        case Qt::Key_Enter:
        case Qt::Key_Return:
            Use(Mouse::LeftPress);
            break;
        case Qt::Key_Menu:
            Use(Mouse::RightPress);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

void StandInIcon::mousePressEvent(QMouseEvent* event) {
    pressedAt = event->position().toPoint();
    isDragged = false;
    if (event->button() == Qt::RightButton) Use(Mouse::RightPress);
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
    if (event->button() == Qt::LeftButton && !isDragged) Use(Mouse::LeftPress);
}

void StandInIcon::mouseDoubleClickEvent(QMouseEvent* event) {
    // The release that follows is no click.
    isDragged = true;
    if (event->button() == Qt::LeftButton) Use(Mouse::DoubleClick);
}

void StandInIcon::closeEvent(QCloseEvent* event) { event->ignore(); }

}  // namespace orvelle::qt
