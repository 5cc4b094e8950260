// The user's hands and eyes, and other programs, on the real X server: a connection of its own beside Qt's.
#pragma once

#include <QPoint>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

namespace orvelle::qt {

class RealInput {
public:
    RealInput();
    ~RealInput();

    void MoveTo(QPoint place);
    void Press(int button);
    void Release(int button);
    void Click(QPoint place, int button);
    // Keys by the key numbers of linux/input-event-codes.h.
    void KeyDown(int linuxKey);
    void KeyUp(int linuxKey);

    // Middle of a window of this program, wherever it is embedded.
    QPoint MiddleOf(const QWidget& widget);
    // Whether the pointer is over the window of this program, and over none on top of it.
    bool PointsAt(const QWidget& widget);
    // Names of the atoms in _NET_WM_STATE.
    std::vector<std::string> WindowState(const QWidget& widget);
    bool HasFocus(const QWidget& widget);
    bool HasTray();
    // Sends a client message of the type ORVELLECP_MESSAGE to the window of that name; false if there is none.
    bool SendDoorMessage(const std::string& windowName, long number, long wParam, long lParam);

private:
    struct Connection;
    std::unique_ptr<Connection> x;
};

}  // namespace orvelle::qt
