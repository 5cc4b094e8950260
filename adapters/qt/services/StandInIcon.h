// The small window that stands in for the icon where the desktop has no notification area: always on top, in the task
// list, in a lower corner, the right one if that is free, until the user drags it elsewhere. At first it says beside
// the icon what it is, until it is used. A click is told when the button is let go, so that a drag is none; Enter and
// Space are a click too. It can't be closed, as it is the only way back to a hidden panel.
#pragma once

#include <QIcon>
#include <QPoint>
#include <QWidget>
#include <functional>

class QLabel;

namespace orvelle::qt {

class StandInIcon : public QWidget {
public:
    enum class Mouse { LeftPress, RightPress, DoubleClick };

    explicit StandInIcon(std::function<void(Mouse)> onMouse);

    void SetIcon(const QIcon& newIcon);
    // `words` are one sentence on what this window is.
    void Appear(const QString& tip, const QString& words);
    // Says that beside the icon until it is used.
    void Say(const QString& words);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void PlaceInCorner();
    bool CoversWindow(const QRect& place) const;
    void Resize(QSize newSize);
    void Use(Mouse mouse);

    const std::function<void(Mouse)> told;
    QIcon icon;
    QLabel* explanation;
    bool isExplained = false;
    bool isPlaced = false;
    QPoint pressedAt;
    bool isDragged = false;
};

}  // namespace orvelle::qt
