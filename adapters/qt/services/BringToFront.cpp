#include "adapters/qt/services/BringToFront.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

#include "adapters/x11/XServer.h"

namespace orvelle::qt {

namespace {

// The user last touched this program long ago, so Qt's own request would be refused as an intrusion.
void Activate(QWindow& window) {
    window.raise();
    window.requestActivate();
    if (xcb_connection_t* const connection = XConnection())
        XActivate(connection, static_cast<xcb_window_t>(window.winId()));
}

// The window manager knows a window from when it shows it; what is asked before that is lost.
class OnceShown : public QObject {
public:
    explicit OnceShown(QWindow& window) : QObject(&window) { window.installEventFilter(this); }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        auto& window = *static_cast<QWindow*>(receiver);
        if (event->type() == QEvent::Expose && window.isExposed()) {
            Activate(window);
            window.removeEventFilter(this);
            deleteLater();
        }
        return false;
    }
};

}  // namespace

void BringToFront(QWidget& widget) {
    QWindow* const window = widget.windowHandle();
    if (window == nullptr) return;
    // Who shows it may not have learned yet that it is an icon by now.
    if (widget.isMinimized()) widget.setWindowState(widget.windowState() & ~Qt::WindowMinimized);
    if (window->isExposed())
        Activate(*window);
    else
        new OnceShown(*window);
}

}  // namespace orvelle::qt
