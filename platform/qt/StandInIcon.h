// The small window that stands in for the icon where the desktop has no notification area: always on top, in the task
// list, in the lower right corner until the user drags it elsewhere. A click is told when the button is let go, so that
// a drag is none; Enter and Space are a click too. It can't be closed, as it is the only way back to a hidden panel.
#pragma once

#include <QIcon>
#include <QPoint>
#include <QWidget>
#include <functional>

namespace orvelle {

class StandInIcon : public QWidget {
public:
    enum class Mouse { LeftPress, RightPress, DoubleClick };

    explicit StandInIcon(std::function<void(Mouse)> onMouse);

    void SetIcon(const QIcon& newIcon);
    // Shows the window with its tip; the explanation is shown beside it the first time.
    void Appear(const QString& tip, const QString& explanation);

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

    const std::function<void(Mouse)> told;
    QIcon icon;
    QPoint pressedAt;
    bool isDragged = false;
    bool wasShown = false;
};

}  // namespace orvelle
